// What a reader of the plots needs: no label on another one, on a point, a line or a scroll bar, or
// beyond the edge; letters of 6 points at least; no number cut. On every kind of plot, on all
// scales, with and without a range, on small and large windows.
#include <gtest/gtest.h>

#include <algorithm>
#include <array>
#include <cmath>
#include <cstdint>

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

// What the line spans meets the box, and the box has corners on either side of the line. The
// drawing finds its places in another way, so that neither can be wrong unseen.
bool Crosses(const Box& box, const DrawnLine& line) {
  const auto [left, right] = std::minmax(line.from.x, line.to.x);
  const auto [top, bottom] = std::minmax(line.from.y, line.to.y);
  if (!Overlap(box, {left, top, right, bottom})) return false;
  const Point along{line.to.x - line.from.x, line.to.y - line.from.y};
  if (along.x == 0 && along.y == 0) return true;
  const auto side = [&](double x, double y) {
    return along.x * (y - line.from.y) - along.y * (x - line.from.x);
  };
  const auto [least, most] = std::minmax({side(box.left, box.top), side(box.right, box.top),
                                          side(box.left, box.bottom), side(box.right, box.bottom)});
  return least < 0 && most > 0;
}

// The hairlines of grid and ticks, which a text may have behind it.
bool IsHair(const DrawnLine& line) { return line.width <= 10; }

struct Seen {
  std::vector<DrawnText> texts;
  std::vector<DrawnLine> lines;
};

Seen Look(const drawing::DrawingRecord& drawing) {
  Seen seen;
  for (const auto& item : drawing.Items()) {
    if (const auto* text = std::get_if<DrawnText>(&item)) seen.texts.push_back(*text);
    const auto* line = std::get_if<DrawnLine>(&item);
    if (line && !IsHair(*line)) seen.lines.push_back(*line);
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
    EXPECT_TRUE(
        std::ranges::none_of(seen.lines, [&](const DrawnLine& line) { return Crosses(box, line); }))
        << name << " on a point or a line: " << seen.texts[i].text;
    EXPECT_GE(seen.texts[i].style.size, 6) << name;
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

// In twips, the picture in windows of 800 by 613, 1366 by 768, 1920 by 1080 and 3840 by 2160, and
// on a desk that leaves it less.
constexpr std::array<Point, 5> kSizes = {Point{11760, 7770}, Point{20250, 10095},
                                         Point{28560, 14775}, Point{57360, 30975},
                                         Point{9000, 6300}};

// A series, and how it reached the program.
struct Case {
  const char* name;
  const char* file = nullptr;  // of the examples
  std::vector<double> outcomes{};
  std::int16_t SigDigits = 3;
  std::string Name{};
  std::string Unit = "mg/m3";
};

// Outcomes of many digits about `middle`.
std::vector<double> About(double middle, int M, double spread) {
  std::vector<double> outcomes;
  outcomes.reserve(static_cast<std::size_t>(M));
  for (int i = 0; i < M; ++i)
    outcomes.push_back(middle * std::pow(spread, 2.0 * i / (M - 1) - 1) * (1 + 0.01 * (i * 7 % 5)));
  std::ranges::sort(outcomes);
  return outcomes;
}

std::vector<Case> Cases() {
  const std::string capitals(63, 'W');
  std::vector<Case> cases = {{"fibres", "fibres.vkr"},
                             {"solvent", "solvent.vkr"},
                             {"welding_fume", "welding_fume.vkr"},
                             {"wood_dust", "wood_dust.vkr"}};
  cases.push_back({"near_a_hundredth", nullptr, About(0.0106833284, 12, 1.4), 12});
  cases.push_back({"near_nothing", nullptr, About(1.13712345E-9, 11, 9), 12});
  cases.push_back({"very_large", nullptr, About(1.2345678912E9, 21, 5), 12});
  cases.push_back({"of_a_long_name", nullptr, About(0.4, 12, 3), 4, capitals});
  cases.push_back({"of_a_long_name_with_blanks", nullptr, About(0.4, 60, 3), 4,
                   "Moulders and core makers of the foundry west, shift of the night"});
  cases.push_back({"of_a_long_unit", nullptr, About(30, 15, 3), 6, "Fibres",
                   "fibres per millilitre, eight-hour mean"});
  return cases;
}

class PlotReadable : public testing::TestWithParam<Case> {
 protected:
  void SetUp() override {
    const Case& each = GetParam();
    if (each.file) {
      p.OpenFile(std::string(VALKORIN_SOURCE_DIR) + "/examples/" + each.file);
      ASSERT_TRUE(p.Tab("plot"));
      return;
    }
    p.See(each.outcomes);
    p.Record().SigDigits = each.SigDigits;
    if (!each.Name.empty()) p.Record().Name = each.Name;
    p.Record().Unit = each.Unit;
  }
  // On all scales that fit the series, in all sizes.
  void LookAtAll() {
    for (const analysis::Transformation& scale : analysis::kTransformations) {
      SCOPED_TRACE(scale.name);
      const std::size_t i = static_cast<std::size_t>(&scale - analysis::kTransformations.data());
      p.Click(kMenus[i]);
      for (const Point size : kSizes) {
        SCOPED_TRACE(size.x);
        p.Plot().PicPlot.drawing.SetScale(size.x, size.y);
        p.Click("MenuRedraw");
        ExpectReadable(p.Plot().PicPlot.drawing);
        ExpectClearOfBars(p.Plot());
        ExpectNumbersWhole();
      }
    }
  }
  // Only a name may lose its middle.
  void ExpectNumbersWhole() {
    for (const DrawnText& text : Look(p.Plot().PicPlot.drawing).texts) {
      const bool ofName = text.label == "LblKoptekst" || text.label == "LblRegres";
      EXPECT_TRUE(ofName || text.text.find("\u2026") == std::string::npos) << text.text;
    }
    p.box.shown.clear();
  }

  static constexpr std::array<const char*, 7> kMenus = {
      "MenuDubLog", "MenuLog", "MenuSqrt", "MenuUntransf", "MenuSqrd", "MenuExp", "MenuRecip"};
  plot_screen::User p;
};

// The check itself: a line beside a corner, across it, through the middle, along a side, and a dot.
TEST(PlotReadableCheck, SeesALineOnAText) {
  const Box box{100, 100, 300, 200};
  const auto crosses = [&](Point from, Point to) { return Crosses(box, {from, to, {}, 15}); };
  EXPECT_FALSE(crosses({50, 140}, {140, 50}));
  EXPECT_TRUE(crosses({50, 160}, {160, 50}));
  EXPECT_TRUE(crosses({200, 0}, {200, 400}));
  EXPECT_TRUE(crosses({0, 150}, {400, 150}));
  EXPECT_TRUE(crosses({150, 150}, {160, 155}));
  EXPECT_FALSE(crosses({100, 0}, {100, 400}));
  EXPECT_FALSE(crosses({0, 250}, {400, 250}));
  EXPECT_FALSE(crosses({310, 0}, {500, 400}));
  EXPECT_TRUE(crosses({200, 150}, {200, 150}));
  EXPECT_FALSE(crosses({301, 150}, {301, 150}));
}

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

INSTANTIATE_TEST_SUITE_P(Series, PlotReadable, testing::ValuesIn(Cases()),
                         [](const auto& each) { return std::string(each.param.name); });
