#pragma once

#include <functional>
#include <utility>
#include <vector>

#include "session/record.h"
#include "session/workflow.h"

// States of the record that the live line tells of.
namespace line_states {

using Prepare = std::function<void(Record&)>;

inline void Give(Record& record, std::vector<double> outcomes) {
  record.Change([&](Given& given) {
    given.Mode = DataMode::Raw;
    given.Name = "series.vkr";
    given.M = static_cast<double>(outcomes.size());
    given.C.assign(1, 0.0);
    given.C.insert(given.C.end(), outcomes.begin(), outcomes.end());
    given.OELV = 1;
    given.U = 95;
    given.D = 95;
  });
  record.StatusFlags();
}

inline void Nine(Record& record) {
  Give(record, {1, 2, 3, 4, 5, 6, 7, 8, 9});
  record.Change([](Given& given) { given.limitStated = true; });
}

inline void NineWithRange(Record& record) {
  Nine(record);
  record.Change([](Given& given) {
    given.DetecOn = true;
    ControleOndergrens(given, 3.5);
    given.inForce = Estimates::RangeDegrees;
  });
}

// The line through the outcomes in range.
inline void NineByRegression(Record& record) {
  NineWithRange(record);
  record.Change([](Given& given) {
    given.regression = RegressionEstimates{4, 2};
    given.inForce = Estimates::Regression;
  });
}

inline Prepare Then(Prepare first, Prepare next) {
  return [first = std::move(first), next = std::move(next)](Record& record) {
    first(record);
    next(record);
  };
}

inline Prepare Reports(workflow::ScreenId screen, LastAction action) {
  return [screen, action](Record& record) { record.Report(screen, action); };
}

inline Prepare Changes(std::function<void(Given&)> change) {
  return [change = std::move(change)](Record& record) { record.Change(change); };
}

}  // namespace line_states
