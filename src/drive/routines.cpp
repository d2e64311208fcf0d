#include "drive/routines.h"

#include <optional>
#include <string_view>

#include "base/fault.h"
#include "drive/call.h"
#include "drive/failure.h"
#include "drive/record_fields.h"
#include "drive/text.h"
#include "rawdata/raw_file.h"
#include "session/global_bas.h"
#include "session/limit_checks.h"
#include "session/moments.h"
#include "stats/coefficients.h"
#include "stats/estimators.h"
#include "stats/normal.h"

namespace drive {
namespace {

template <void (*F)(Workflow&, const GlobalBAS::Entry&, double&, const GlobalBAS::Notify&)>
void Validator(Call& c) {
  double& value = c.Ref(1);
  F(c.s, {c.Text(0)}, value, c.Notify());
  c.Tell(value);
}

template <void (*F)(ExposureSession&, double)>
void LimitCheck(Call& c) {
  F(c.s, c.Number(0));
}

void GMUnbiasedCall(Call& c) {
  double& gm = c.Ref(0);
  double& gsd = c.Ref(1);
  c.Tell(StatFWinBAS::GMUnbiased(c.s, gm, gsd));
  c.Tell(gm);
  c.Tell(gsd);
}

void LogMomentsCall(Call& c) {
  double& gm = c.Ref(0);
  double& gsd = c.Ref(1);
  LogMoments(c.s, gm, gsd);
  c.Tell(gm);
  c.Tell(gsd);
}

void CheckOELVCall(Call& c) {
  std::optional<double> typed;
  if (c.Text(1) != "session.OELV") typed = c.Optional(1);
  std::optional<double>& value = c.Text(1) == "session.OELV" ? c.s.OELV : typed;
  GlobalBAS::CheckOELV(c.s, {c.Text(0)}, value, c.Notify());
  c.Tell(value);
}

void CheckNameCall(Call& c) {
  std::string typed = c.Text(1);
  std::string& name = typed == "session.Name" ? c.s.Name : typed;
  GlobalBAS::CheckName(c.s, c.Text(0), name, c.Notify());
  c.Tell(name);
}

const Routine kRoutines[] = {
    {"NormalUpper", 1, OnNumbers<StatFWinBAS::NormalUpper, 1>},
    {"NormalUpperHill", 1, OnNumbers<StatFWinBAS::NormalUpperHill, 1>},
    {"NormalUpperInverse", 1, OnNumbers<StatFWinBAS::NormalUpperInverseInPlace, 1>},
    {"RoystonPoly", 3,
     [](Call& c) { c.Tell(StatFWinBAS::RoystonPoly(c.Number(0), c.Int(1), c.Int(2))); }},
    {"FinneyMeanMVU", 3, OnNumbers<StatFWinBAS::FinneyMeanMVU, 3>},
    {"FinneyMeanMMSE", 3, OnNumbers<StatFWinBAS::FinneyMeanMMSE, 3>},
    {"FinneyVarianceMVU", 3, OnNumbers<StatFWinBAS::FinneyVarianceMVU, 3>},
    {"GMUnbiased", 2, GMUnbiasedCall},
    {"LinearMoments", 0, OnTheRecord<StatFWinBAS::LinearMoments>},
    {"LogMoments", 2, LogMomentsCall, {"session.GM", "session.GSD"}},
    {"DegreesOfFreedom", 0, OnTheRecord<DegreesOfFreedom>},
    {"StoreMedian", 0, OnTheRecord<StoreMedian>},
    {"StatusFlags", 0, OnTheRecord<GlobalBAS::StatusFlags>},
    {"ControleOndergrens", 1, LimitCheck<ControleOndergrens>},
    {"ControleBovengrens", 1, LimitCheck<ControleBovengrens>},
    {"ControleDetectieBereik", 1, LimitCheck<ControleDetectieBereik>},
    {"SortValues", 0, [](Call& c) { rawdata::SortValues(SampleCount(c.s), c.s.C, c.s.SortOrder); }},
    {"Val", 1, [](Call& c) { c.Tell(GlobalBAS::Val(c.Text(0))); }},
    {"NormalizeDecimal", 1, [](Call& c) { c.Tell(GlobalBAS::NormalizeDecimal(c.Text(0))); }},
    {"GeneralText", 1, [](Call& c) { c.Tell(GlobalBAS::GeneralText(c.Number(0))); }},
    {"FileText", 1, [](Call& c) { c.Tell(GlobalBAS::FileText(c.Number(0))); }},
    {"Str", 1, [](Call& c) { c.Tell(GlobalBAS::Str(c.Number(0))); }},
    {"CheckU", 2, Validator<GlobalBAS::CheckU>, {"session.U"}},
    {"CheckD", 2, Validator<GlobalBAS::CheckD>, {"session.D"}},
    {"CheckOELV", 2, CheckOELVCall, {"session.OELV"}},
    {"CheckGM", 2, Validator<GlobalBAS::CheckGM>, {"session.GM"}},
    {"CheckGSD", 2, Validator<GlobalBAS::CheckGSD>, {"session.GSD"}},
    {"CheckM", 2, Validator<GlobalBAS::CheckM>, {"session.M"}},
    {"CheckMRef", 2, Validator<GlobalBAS::CheckMRef>, {"session.M2"}},
    {"CheckName", 2, CheckNameCall, {"session.Name"}},
};

const Routine& RoutineOf(const std::string& name) {
  for (const Routine& routine : kRoutines)
    if (routine.name == name) return routine;
  for (const auto* group :
       {&DistributionRoutines(), &FitRoutines(), &ComplianceRoutines(), &MeanRoutines()}) {
    for (const Routine& routine : *group)
      if (routine.name == name) return routine;
  }
  throw Failure("no routine " + name);
}

}  // namespace

std::string Evaluate(ExposureSession& s, screen::MessageBox& messageBox, const std::string& name,
                     std::vector<std::string> words) {
  const Routine& routine = RoutineOf(name);
  if (words.size() + routine.own.size() == routine.arguments)
    words.insert(words.end(), routine.own.begin(), routine.own.end());
  if (words.size() != routine.arguments) {
    throw Failure(name + " takes " + IntText(static_cast<int>(routine.arguments)) +
                  " arguments, not " + IntText(static_cast<int>(words.size())));
  }
  Call call(s, messageBox, words);
  try {
    routine.run(call);
  } catch (const RunTimeError& fault) {
    return std::string("fault: ") + fault.what();
  }
  return call.Told();
}

std::string MaskLine(const std::string& value, const std::string& sigDigits) {
  std::optional<double> number;
  if (value != "empty") number = NumberOf(value);
  const std::string mask = GlobalBAS::FormatMask(number, IntOf(sigDigits));
  const std::string shown = number ? GlobalBAS::FormatNumber(*number, mask) : "";
  return Quoted(mask) + " " + Quoted(shown);
}

}  // namespace drive
