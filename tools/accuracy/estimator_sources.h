#pragma once

#include "session/exposure_session.h"
#include "tools/accuracy/worst.h"

// The estimators from df, GM and GSD against their table and over their domain.
namespace accuracy {

using Estimator = double (*)(double df, double GM, double GSD);
using Definition = Real (*)(Real df, Real GM, Real GSD);

const std::vector<Column>& EstimatorInputs();
std::function<double(const support::Row&)> CalledWith(Estimator estimator);
// Rows of estimator_truth.csv of one function with a GSD of `from` up to `to`.
Source EstimatorTruth(const std::string& function, double from, double to, Estimator estimator);
Search LookAtEstimator(double dfFrom, double from, double to, Estimator estimator,
                       Definition truth);

double GMUnbiasedOf(double df, double GM, double GSD);
// The record with the moments that follow from GM and GSD.
ExposureSession LinearMomentsOf(double df, double GM, double GSD);

}  // namespace accuracy
