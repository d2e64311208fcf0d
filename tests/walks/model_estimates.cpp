// Which estimates are in force, and whether the record holds them.
#include <cmath>

#include "tests/walks/model.h"
#include "tests/walks/numbers.h"

namespace walks {
namespace {

using enum Whose;

bool DetectionField(const std::string& control) {
  return control == "DetecLTxb" || control == "DetecUTxb";
}

double TypedMean(const std::string& text, double old) {
  return Blank(text) ? old : TypedNumber(text);
}

double TypedDeviation(const std::string& text, double old) {
  if (Blank(text)) return old;
  const double value = TypedNumber(text);
  if (value == 0) return 0;
  return std::clamp(value, 1.001, 1000.0);
}

bool Valid(const Seen& seen) {
  return seen.Count() > 0 && !seen.Name.empty() && seen.GM >= 0.0001 && seen.GM <= 10000 &&
         seen.GSD >= 1.001 && seen.GSD <= 1000;
}

Range RangeOf(const Seen& seen) { return {seen.FirstInRange, seen.LastInRange}; }

// The outcomes that the picture takes to be in range: it counts along its scale, where reciprocals
// stand in reverse.
Range RangeOnScale(const Seen& seen) {
  const Range range = RangeOf(seen);
  const int M = seen.Count();
  return seen.scale == "MenuRecip" ? Range{M + 1 - range.last, M + 1 - range.first} : range;
}

double DfOf(const Seen& seen) {
  return seen.DetecOn ? RangeDf(seen.Count(), seen.NInRange) : seen.M - 1;
}

std::string Told(const Sample& sample) {
  return "GM " + Word(sample.GM) + ", GSD " + Word(sample.GSD) + ", df " + Word(sample.df);
}

}  // namespace

void Model::AdvanceEstimates(const Scene& scene) {
  known_ = false;
  closed_ = false;
  FollowModify(scene);
  const Seen& after = scene.after;
  if (after.Mode == "D" || after.ModifyMode) {
    FollowTyped(scene);
    CheckTyped(scene);
    return;
  }
  if (after.Mode != "R" || !complete_) return Unknown("the series is not complete", false);
  if (!HasSpread(series_, after.M - 1)) return Unknown("the series has no usable spread", true);
  FollowForce(scene);
  if (NoDegrees(scene)) return;
  Recognise(scene);
  if (!Near(after.C.front(), MedianOf(series_)))
    scene.findings.Add("median", "C(0) is " + Word(after.C.front()) + ", the median of 1 to M is " +
                                     Word(MedianOf(series_)));
  known_ = true;
}

// The whole sample's degrees of freedom may be in force where the range leaves none.
bool Model::NoDegrees(const Scene& scene) {
  const Seen& after = scene.after;
  if (!force_.contains(ByRange) || DfOf(after) >= 1 || after.df != DfOf(after)) return false;
  force_ = {ByRange};
  known_ = false;
  closed_ = true;
  why_ = "the range leaves no degree of freedom";
  return true;
}

void Model::Unknown(const std::string& why, bool closed) {
  why_ = why;
  closed_ = closed;
  force_.clear();
}

void Model::FollowModify(const Scene& scene) {
  if (scene.after.ModifyMode && !scene.before.ModifyMode) {
    beforeModify_ = force_;
    MBeforeModify_ = scene.before.M;
    resetTo_ = {scene.before.GM, scene.before.GSD, scene.before.df};
    typedGM_ = resetTo_.GM;
    typedGSD_ = resetTo_.GSD;
  } else if (!scene.after.ModifyMode && scene.before.ModifyMode) {
    force_ = beforeModify_;
    typedGM_ = scene.after.Mode == "D" && scene.after.M > 0 ? resetTo_.GM : 0;
    typedGSD_ = scene.after.Mode == "D" && scene.after.M > 0 ? resetTo_.GSD : 0;
  } else if (scene.after.Mode != scene.before.Mode || scene.Closed()) {
    typedGM_ = scene.after.M == 0 ? 0 : typedGM_;
    typedGSD_ = scene.after.M == 0 ? 0 : typedGSD_;
  }
}

void Model::FollowTyped(const Scene& scene) {
  force_ = {Typed};
  std::string text;
  if (!scene.On("BasisForm")) return;
  if (scene.Typed("GMTxB", text)) typedGM_ = TypedMean(text, typedGM_);
  if (scene.Typed("GSDTxB", text)) typedGSD_ = TypedDeviation(text, typedGSD_);
}

void Model::CheckTyped(const Scene& scene) {
  const Seen& after = scene.after;
  if (after.GM != typedGM_ || after.GSD != typedGSD_)
    scene.findings.Add("estimates", Told({after.GM, after.GSD, after.df}) + ", but typed were GM " +
                                        Word(typedGM_) + ", GSD " + Word(typedGSD_));
  if (!Valid(after)) return Unknown("GM, GSD or M is out of its range", false);
  force_ = {Typed};
  if (after.df != after.M - 1)
    scene.findings.Add("estimates", "df is " + Word(after.df) + " with M " + Word(after.M));
  known_ = true;
}

// The rules that put other estimates in force; what none of them names stays.
void Model::FollowForce(const Scene& scene) {
  const Seen& after = scene.after;
  const bool onRaw = scene.On("DataCtrlForm");
  std::string text;
  if (force_.empty() || force_.contains(Typed)) force_ = {Whole, ByRange};
  // What was in force then is so again.
  if (scene.StepsBack()) force_ = {Whole, ByRange, Line};
  if (after.form == "PlotForm") return FollowPlot(scene);
  if (scene.StepsBack()) return;
  const bool edited = onRaw && (edited_ || scene.Clicked("DetecChB") ||
                                scene.Typed("DetecLTxb", text) || scene.Typed("DetecUTxb", text));
  const bool resized =
      scene.On("BasisForm") && after.M != scene.before.M && !scene.before.ModifyMode;
  if (scene.Arrived("DataCtrlForm") && !scene.On("VerdelingForm")) {
    force_ = {Whole};
  } else if (edited || resized) {
    force_ = {ByRange};
  } else if (onRaw && DetectionField(scene.before.focus)) {
    force_.insert(ByRange);
  }
}

// Every drawing takes the estimates anew, unless there is no line to take.
void Model::FollowPlot(const Scene& scene) {
  const Seen& after = scene.after;
  const bool ofLine = after.DetecOn && after.scale == "MenuLog";
  const auto line = LineThrough(series_, RangeOnScale(after));
  // The line of another range does not outlive it.
  if (force_.contains(Line)) force_.insert(ByRange);
  if (after.NInRange < 2 || !line) return;
  force_ = {ofLine && Plausible(*line) ? Line : ByRange};
}

std::optional<Sample> Model::SampleOf(Whose whose, const Seen& seen) const {
  if (whose == Line) return LineThrough(series_, RangeOf(seen));
  return WholeSample(series_, whose == Whole ? seen.M - 1 : DfOf(seen));
}

bool Model::Matches(Whose whose, const Scene& scene) const {
  const Seen& after = scene.after;
  const auto wanted = SampleOf(whose, after);
  if (!wanted || after.RegressionOn != (whose == Line)) return false;
  return Near(after.GM, wanted->GM) && after.df == wanted->df &&
         Near(std::log(after.GSD), std::log(wanted->GSD), SpreadTolerance(series_));
}

void Model::Recognise(const Scene& scene) {
  std::set<Whose> met;
  std::string wanted;
  for (const Whose whose : force_) {
    if (Matches(whose, scene)) met.insert(whose);
    const auto sample = SampleOf(whose, scene.after);
    wanted += std::string("; of ") + NameOf(whose) + ": " + (sample ? Told(*sample) : "none");
  }
  const Seen& after = scene.after;
  if (met.empty())
    scene.findings.Add("estimates", Told({after.GM, after.GSD, after.df}) +
                                        (after.RegressionOn ? " as the regression's" : "") +
                                        wanted);
  else
    force_ = met;
}

}  // namespace walks
