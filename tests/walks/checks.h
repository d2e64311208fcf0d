#pragma once

#include "tests/walks/model.h"

namespace walks {

// What a check of a screen looks at.
struct View {
  const Scene& scene;
  Model& model;
  const Page& page;

  const Seen& Now() const { return scene.after; }
  Sample Estimates() const { return {Now().GM, Now().GSD, Now().df}; }
  Limits Given() const { return {Now().OELV.value_or(0), Now().U, Now().D}; }
  void Wrong(const std::string& rule, const std::string& what) const {
    scene.findings.Add(rule, what);
  }
  // The control, when it is to be seen, shows this number; or nothing, or that it is unknown.
  void Number(const std::string& rule, const std::string& control, double value) const;
  // It shows the number, without a way out.
  void Must(const std::string& rule, const std::string& control, double value) const;
};

// The checks of what the shown screen shows, by the screen's subject.
void CheckStart(const View& view);
void CheckRawData(const View& view);
void CheckLimits(const View& view);
void CheckDescriptive(const View& view);
void CheckPlot(const View& view);
void CheckTests(const View& view);
void CheckMean(const View& view);
void CheckComparison(const View& view);
void CheckPicture(const View& view);

// The rules that hold on every screen.
void CheckBoxes(const View& view);
void CheckSteps(const View& view);
void CheckStrip(const View& view);
void CheckWays(const View& view);
void CheckLine(const View& view);
// Each widget shows the state of its control.
void CheckWidgets(const View& view);

// All of them.
void CheckAll(const View& view);

}  // namespace walks
