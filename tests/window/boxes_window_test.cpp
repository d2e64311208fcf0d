#include <gtest/gtest.h>

#include <QLineEdit>

#include <string>

#include "tests/support/program_session.h"
#include "tests/window/toolkit.h"

// The boxes of results in the real toolkit: a number is never seen without one of its ends.
namespace {

using navigation::ScreenId;

class ResultBoxes : public testing::Test {
 protected:
  ResultBoxes() {
    application.Start();
    ExposureSession& s = Record();
    s.Mode = DataMode::Statistics;
    s.Name = "Welders";
    s.M = 12;
    s.df = 11;
    s.GM = 1234.5678901234;
    s.GSD = 123.45678901234;
    s.OELV = 123456.7890123456;
    s.U = 95;
    s.D = 95;
    s.CompareMode = ReferenceKind::Sample;
    s.SigDigits = 15;
    s.IdentOk = s.DescOk = s.LimitsOk = true;
    application.Window().resize(800, 613);
    application.Window().show();
  }
  ExposureSession& Record() { return application.Program().Session(); }

  void Show(ScreenId screen, const char* button = nullptr) {
    application.Program().Open(screen);
    screen::Form& form = application.Program().Shown();
    if (button) form.Find(button)->Click();
    application.Window().ShowState();
    qApp->processEvents();
  }
  // The narrowest that a box with this text may be.
  static int Needed(const QLineEdit& box) {
    return box.fontMetrics().horizontalAdvance(box.text()) + 8;
  }
  // How many boxes of the shown screen hold a text, all of them wide enough for it.
  int CountWhole() {
    int filled = 0;
    for (const QLineEdit* box : application.Window().findChildren<QLineEdit*>()) {
      if (!box->isVisible() || !box->isReadOnly() || box->text().trimmed().isEmpty()) continue;
      EXPECT_GE(box->width(), Needed(*box))
          << box->objectName().toStdString() << " " << box->text().toStdString();
      ++filled;
    }
    return filled;
  }

  support::RecordingPorts around;
  ui::Application application{
      {around.box, around.dialog, around.clock, around.printer, around.tables}};
};

TEST_F(ResultBoxes, ShowEveryDigitOfANumberAndItsExponent) {
  Show(ScreenId::Descript);
  EXPECT_GE(CountWhole(), 6);
  for (const auto& [button, boxes] :
       {std::pair("LeidelCmb", 2), {"WilksCmb", 2}, {"TuggleCmb", 3}}) {
    Show(ScreenId::PercEx, button);
    EXPECT_GE(CountWhole(), boxes) << button;
  }
  Show(ScreenId::UCL, "JahrCmb");
  EXPECT_GE(CountWhole(), 3);
  Show(ScreenId::UCL, "LandCmb");
  EXPECT_GE(CountWhole(), 3);
  Show(ScreenId::TwoSamp, "CalcCmb");
  EXPECT_GE(CountWhole(), 9);
}

TEST_F(ResultBoxes, AreAsWideAsBeforeOnceTheNumberIsShortAgain) {
  Record().SigDigits = 3;
  Show(ScreenId::TwoSamp, "CalcCmb");
  auto* box = application.Window().findChild<QLineEdit*>(QStringLiteral("GMTxb3"));
  ASSERT_NE(box, nullptr);
  const int before = box->width();
  Record().SigDigits = 17;
  Record().GM = Record().GM2 = 8765.4321098765432;
  Show(ScreenId::TwoSamp, "CalcCmb");
  EXPECT_GT(box->width(), before);
  Record().SigDigits = 3;
  Show(ScreenId::TwoSamp, "CalcCmb");
  EXPECT_EQ(box->width(), before);
}

TEST_F(ResultBoxes, ShowTheBeginningOfALongName) {
  Record().Name = "Welders in the third hall of the northern shipyard, by night and in winter";
  Show(ScreenId::TwoSamp);
  int seen = 0;
  for (const QLineEdit* box : application.Window().findChildren<QLineEdit*>()) {
    if (!box->isVisible() || box->objectName() != QLatin1String("NameTxB")) continue;
    EXPECT_EQ(box->cursorPosition(), 0);
    ++seen;
  }
  EXPECT_EQ(seen, 1);
}

}  // namespace
