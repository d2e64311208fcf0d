// What a reader of the plots needs: no label on another one, on a point, on the line, or beyond the
// edge.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <optional>

#include "analysis/transformations.h"
#include "tests/plots/plot_screen.h"

namespace {

using drawing::Across;
using drawing::Down;
using drawing::DrawnLine;
using drawing::DrawnText;
using drawing::Point;

struct Box {
  double left;
  double top;
  double right;
  double bottom;
};

double Before(Across across) {
  return across == Across::Left ? 0 : across == Across::Centre ? 0.5 : 1;
}
double Above(Down down) { return down == Down::Top ? 0 : down == Down::Middle ? 0.5 : 1; }

Box BoxOf(const DrawnText& text) {
  const double width = PlotWBas::TextWidth(text.text, text.style);
  const double height = PlotWBas::TextHeight(text.text, text.style);
  const double left = text.at.x - Before(text.style.across) * width;
  const double top = text.at.y - Above(text.style.down) * height;
  // Between two lines of text there is some room.
  const double lead = 0.2 * text.style.size * 20;
  return {left, top + lead / 2, left + width, top + height - lead / 2};
}

bool Overlap(const Box& a, const Box& b) {
  return a.left < b.right && b.left < a.right && a.top < b.bottom && b.top < a.bottom;
}

bool Holds(const Box& box, Point at) {
  return at.x > box.left && at.x < box.right && at.y > box.top && at.y < box.bottom;
}

// In steps that are smaller than a letter.
bool Crosses(const Box& box, const DrawnLine& line) {
  constexpr int kSteps = 400;
  for (int i = 0; i <= kSteps; ++i) {
    const double part = static_cast<double>(i) / kSteps;
    if (Holds(box, {line.from.x + part * (line.to.x - line.from.x),
                    line.from.y + part * (line.to.y - line.from.y)}))
      return true;
  }
  return false;
}

// The slanting lines: crosses and the regression line. Frame, ticks and limits run straight.
bool Slants(const DrawnLine& line) { return line.from.x != line.to.x && line.from.y != line.to.y; }

struct Seen {
  std::vector<DrawnText> texts;
  std::vector<DrawnLine> slanting;
};

Seen Look(const drawing::DrawingRecord& drawing) {
  Seen seen;
  for (const auto& item : drawing.Items()) {
    if (const auto* text = std::get_if<DrawnText>(&item)) seen.texts.push_back(*text);
    const auto* line = std::get_if<DrawnLine>(&item);
    if (line && Slants(*line)) seen.slanting.push_back(*line);
  }
  return seen;
}

void ExpectReadable(const drawing::DrawingRecord& drawing) {
  const Seen seen = Look(drawing);
  for (std::size_t i = 0; i < seen.texts.size(); ++i) {
    const Box box = BoxOf(seen.texts[i]);
    const std::string& name = seen.texts[i].label;
    EXPECT_TRUE(box.left >= 0 && box.top >= 0 && box.right <= drawing.ScaleWidth() &&
                box.bottom <= drawing.ScaleHeight())
        << name << " beyond the edge";
    for (std::size_t j = i + 1; j < seen.texts.size(); ++j)
      EXPECT_FALSE(Overlap(box, BoxOf(seen.texts[j])))
          << name << " on " << seen.texts[j].label << ": " << seen.texts[i].text << " | "
          << seen.texts[j].text;
    EXPECT_TRUE(std::ranges::none_of(seen.slanting,
                                     [&](const DrawnLine& line) { return Crosses(box, line); }))
        << name << " on a point or the line";
  }
}

// No scroll bar hides a text.
void ExpectClearOfBars(const plots::PlotForm& form) {
  for (const screen::Control* bar :
       {&form.VScLowLimit, &form.VScUplimit, &form.HScLowLimit, &form.HScUplimit}) {
    if (!bar->visible) continue;
    const screen::Place& at = bar->place.value();
    const Box box{at.left, at.top, at.left + at.width, at.top + at.height};
    for (const DrawnText& text : Look(form.PicPlot.drawing).texts)
      EXPECT_FALSE(Overlap(box, BoxOf(text))) << bar->name << " on " << text.label;
  }
}

constexpr std::array<Point, 3> kSizes = {Point{11760, 7770}, Point{18960, 9375}, Point{9000, 6300}};

class PlotReadable : public testing::TestWithParam<const char*> {
 protected:
  void SetUp() override {
    p.OpenFile(std::string(VALKORIN_SOURCE_DIR) + "/examples/" + GetParam());
    ASSERT_TRUE(p.Tab("plot"));
  }
  // On all scales that fit the series, in all sizes.
  void LookAtAll() {
    for (const analysis::Transformation& scale : analysis::kTransformations) {
      SCOPED_TRACE(scale.name);
      const std::size_t i = static_cast<std::size_t>(&scale - analysis::kTransformations.data());
      p.Click(kMenus[i]);
      for (const Point size : kSizes) {
        p.Plot().PicPlot.drawing.SetScale(size.x, size.y);
        p.Click("MenuRedraw");
        ExpectReadable(p.Plot().PicPlot.drawing);
        ExpectClearOfBars(p.Plot());
      }
    }
  }

  static constexpr std::array<const char*, 7> kMenus = {
      "MenuDubLog", "MenuLog", "MenuSqrt", "MenuUntransf", "MenuSqrd", "MenuExp", "MenuRecip"};
  plot_screen::User p;
};

}  // namespace

TEST_P(PlotReadable, WithAllOutcomes) { LookAtAll(); }

TEST_P(PlotReadable, WithARange) {
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 75);
  p.Click("MenuUpLim");
  p.Bar("VScUplimit", 15);
  EXPECT_EQ(p.Record().RegressionLabel, "Double censored");
  LookAtAll();
}

TEST_P(PlotReadable, OnTheInversePlot) {
  p.Click("MenuDevMode");
  p.Click("MenuInvPlot");
  LookAtAll();
  p.Click("MenuLog");
  p.Click("MenuUpLim");
  p.Bar("HScUplimit", 85);
  LookAtAll();
}

TEST_P(PlotReadable, OnThePaperOfAnnexE) {
  p.Click("MenuDevMode");
  p.Click("MenuAnnexEPlot");
  LookAtAll();
  p.Click("memuVALKOplot");
  p.Click("MenuLog");
  p.Click("MenuLowLim");
  p.Bar("VScLowLimit", 75);
  p.Click("MenuAnnexEPlot");
  EXPECT_EQ(p.Record().RegressionLabel, "Single censored");
  LookAtAll();
}

INSTANTIATE_TEST_SUITE_P(
    Examples, PlotReadable,
    testing::Values("fibres.vkr", "solvent.vkr", "welding_fume.vkr", "wood_dust.vkr"),
    [](const auto& example) {
      return std::string(example.param).substr(0, std::string(example.param).find('.'));
    });
