// The window on the users' desktops: dark ones, high-contrast ones, small ones.
#include <gtest/gtest.h>

#include <QApplication>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QScreen>
#include <QWindow>

#include "drive/palettes.h"
#include "tests/support/program_session.h"
#include "tests/window/toolkit.h"
#include "ui/picture_view.h"
#include "ui/readable_colour.h"
#include "ui/text.h"
#include "ui/title_frame.h"
#include "ui/verdict_label.h"
#include "ui/window_place.h"

namespace {

constexpr double kReadable = 4.5;
const QColor kBlue(0, 0, 255);
const QColor kRed(192, 0, 0);
const QColor kGreen(0, 128, 0);

QColor Window(const char* palette) {
  return drive::PaletteByName(palette)->color(QPalette::Window);
}

TEST(Contrast, IsThatOfThePublishedFormula) {
  EXPECT_DOUBLE_EQ(ui::Contrast(Qt::black, Qt::white), 21);
  EXPECT_DOUBLE_EQ(ui::Contrast(Qt::white, Qt::white), 1);
  EXPECT_NEAR(ui::Contrast(QColor(0x77, 0x77, 0x77), Qt::white), 4.48, 0.005);
  EXPECT_NEAR(ui::Contrast(kBlue, QColor(50, 50, 50)), 1.49, 0.005);
}

TEST(StatedColours, StayAsTheyAreOnALightDesktop) {
  for (const QColor& stated : {kBlue, kRed, kGreen}) {
    EXPECT_EQ(ui::ReadableOn(Window("light"), stated), stated);
    EXPECT_EQ(ui::ReadableOn(Qt::white, stated), stated);
  }
}

TEST(StatedColours, AreReadableAndOfTheSameHueOnEveryDarkBackground) {
  for (int grey = 0; grey <= 200; grey += 4)
    for (const QColor& stated : {kBlue, kRed, kGreen}) {
      const QColor background(grey, grey, grey);
      const QColor shown = ui::ReadableOn(background, stated);
      EXPECT_GE(ui::Contrast(shown, background), kReadable) << grey;
      if (grey <= 60) {
        EXPECT_NEAR(shown.hslHueF(), stated.hslHueF(), 0.01) << grey;
      }
    }
}

TEST(StatedColours, AreToldFromTheTextAroundThemOnADarkDesktop) {
  for (const char* palette : {"dark", "contrast"})
    for (const QColor& stated : {kBlue, kRed, kGreen})
      EXPECT_GT(ui::ReadableOn(Window(palette), stated).hslSaturationF(), 0.3) << palette;
}

TEST(QuietTexts, AreReadableAndQuieterThanTheOthers) {
  for (const char* palette : {"light", "dark", "contrast"}) {
    const QColor text = drive::PaletteByName(palette)->color(QPalette::WindowText);
    const QColor quiet = ui::QuietOn(Window(palette), text);
    EXPECT_GE(ui::Contrast(quiet, Window(palette)), kReadable) << palette;
    EXPECT_LT(ui::Contrast(quiet, Window(palette)), ui::Contrast(text, Window(palette)));
  }
}

// A title bar above the top of the screen can't be dragged down again.
TEST(PlaceOfTheWindow, IsWithinTheScreenWithItsFrame) {
  const QRect screen(0, 30, 911, 482);
  const QMargins frame(2, 28, 2, 3);
  const QRect place = ui::ContentPlace({800, 613}, screen, frame);
  EXPECT_TRUE(screen.contains(place.marginsAdded(frame)));
  EXPECT_EQ(place.size(), QSize(800, 451));
  EXPECT_EQ(ui::ContentPlace({800, 400}, screen, frame).size(), QSize(800, 400));
}

TEST(LongWords, CanEndALineAnywhereButShortOnesOnlyAtABlank) {
  const std::string path(150, 'n');
  EXPECT_GT(ui::LabelText("can't read " + path, false).count(ui::kBreak), 100);
  EXPECT_EQ(ui::LabelText("can't read " + path, false).remove(ui::kBreak).toStdString(),
            "can't read " + path);
  EXPECT_EQ(ui::LabelText("12 outcomes read.", false).count(ui::kBreak), 0);
}

class Desktop : public testing::Test {
 protected:
  Desktop() { application.Start(); }
  ~Desktop() override { QApplication::setPalette(*drive::PaletteByName("light")); }

  QWidget& Widget(const char* name) {
    return *application.Window().findChild<QWidget*>(QString::fromLatin1(name));
  }
  void Comply(double oelv) {
    ExposureSession& s = application.Program().Session();
    s.Mode = DataMode::Statistics;
    s.Name = "Welders";
    s.M = 10;
    s.df = 9;
    s.GM = 1;
    s.GSD = 2;
    s.OELV = oelv;
    s.IdentOk = s.DescOk = s.LimitsOk = true;
    application.Program().Open(navigation::ScreenId::PercEx);
    application.Window().ShowState();
    static_cast<QPushButton&>(Widget("LeidelCmb")).click();
    qApp->processEvents();
  }

  support::RecordingPorts around;
  ui::Application application{
      {around.box, around.dialog, around.clock, around.printer, around.tables}};
};

TEST_F(Desktop, TheWindowStandsWithinTheScreenWithItsFrame) {
  for (int round = 0; round < 4; ++round) qApp->processEvents();
  ui::MainWindow& window = application.Window();
  ASSERT_GT(window.windowHandle()->frameMargins().top(), 0) << "this platform draws no frame";
  EXPECT_TRUE(window.screen()->availableGeometry().contains(window.frameGeometry()))
      << window.frameGeometry().width() << " by " << window.frameGeometry().height();
}

TEST_F(Desktop, AVerdictIsToldByASignToo) {
  auto& verdict = static_cast<ui::VerdictLabel&>(Widget("ComplianceLbl"));
  Comply(1000);
  EXPECT_EQ(verdict.Sign(), screen::Sign::Tick);
  const QImage tick = verdict.grab().toImage();
  Comply(1);
  EXPECT_EQ(verdict.Sign(), screen::Sign::Cross);
  const int room = verdict.contentsMargins().left();
  ASSERT_GT(room, 0);
  const QRect left(0, 0, room, verdict.height());
  EXPECT_NE(tick.copy(left), verdict.grab().toImage().copy(left));
}

TEST_F(Desktop, TheColoursFollowADesktopThatTurnsDarkMeanwhile) {
  Comply(1);
  QWidget& verdict = Widget("ComplianceLbl");
  const auto shown = [&] { return verdict.palette().color(QPalette::WindowText); };
  EXPECT_EQ(shown(), kRed);
  for (const char* palette : {"dark", "contrast"}) {
    QApplication::setPalette(*drive::PaletteByName(palette));
    qApp->processEvents();
    EXPECT_GE(ui::Contrast(shown(), Window(palette)), kReadable) << palette;
  }
  QApplication::setPalette(*drive::PaletteByName("light"));
  qApp->processEvents();
  EXPECT_EQ(shown(), kRed);
}

// The toolkit's own outlines are a darker shade of the background: on black there is none.
TEST_F(Desktop, FieldsAndBoxesHaveAnOutlineOnADarkDesktop) {
  static_cast<QAbstractButton&>(Widget("DesOpt")).click();
  for (const char* palette : {"dark", "contrast"}) {
    QApplication::setPalette(*drive::PaletteByName(palette));
    qApp->processEvents();
    for (const char* name : {"NameTxB", "OriModiCmd", "RawOpt"}) {
      const QImage picture = Widget(name).grab().toImage();
      double best = 1;
      for (int x = 0; x < 3; ++x)
        best = std::max(best,
                        ui::Contrast(picture.pixelColor(x, picture.height() / 2), Window(palette)));
      EXPECT_GE(best, 3) << name << " on " << palette;
    }
  }
}

TEST_F(Desktop, TheWindowOfTheProgressGrowsWithTheFont) {
  const QFont before = QApplication::font();
  QFont large = before;
  large.setPointSize(16);
  QApplication::setFont(large);
  auto* side = dynamic_cast<screen::SideWindow*>(application.Program().FormByName("LandHulpForm"));
  ASSERT_NE(side, nullptr);
  side->shown = true;
  application.Window().ShowState();
  for (int round = 0; round < 4; ++round) qApp->processEvents();
  const QWidget& window = Widget("LandHulpForm");
  EXPECT_GE(window.width(), window.minimumSizeHint().width());
  EXPECT_GE(window.height(), window.minimumSizeHint().height());
  for (const QLabel* label : window.findChildren<QLabel*>())
    if (label->isVisible() && !label->wordWrap()) {
      EXPECT_GE(label->width(), label->sizeHint().width()) << label->text().toStdString();
    }
  side->shown = false;
  application.Window().ShowState();
  QApplication::setFont(before);
}

// No designer file lays them out, and they stand beside buttons that one does.
TEST_F(Desktop, TheButtonsOfTheTestsGrowWithTheFontAsOthersDo) {
  Comply(1);
  const QFont before = QApplication::font();
  const int small = Widget("LeidelCmb").minimumHeight();
  EXPECT_EQ(small, Widget("OriModiCmd").minimumHeight());
  QFont large = before;
  large.setPointSize(20);
  QApplication::setFont(large);
  for (int round = 0; round < 4; ++round) qApp->processEvents();
  for (const char* name : {"LeidelCmb", "WilksCmb", "TuggleCmb"}) {
    EXPECT_GT(Widget(name).minimumHeight(), small) << name;
    EXPECT_EQ(Widget(name).minimumHeight(), Widget("OriModiCmd").minimumHeight()) << name;
  }
  QApplication::setFont(before);
}

// The first x from the right at which something stands in the top lines of a picture.
int InkEnd(const QImage& picture, int lines) {
  for (int x = picture.width() - 1; x > 0; --x)
    for (int y = 0; y < lines; ++y)
      if (picture.pixelColor(x, y) != picture.pixelColor(picture.width() - 1, 0)) return x;
  return 0;
}

TEST_F(Desktop, ADoubleAmpersandIsOneInATitleOfSeveralLinesToo) {
  ui::TitleFrame frame;
  const QFontMetrics font = frame.fontMetrics();
  frame.resize(font.horizontalAdvance(QStringLiteral("H && H H")), 200);
  frame.SetTitle(QStringLiteral("H && Hall"));
  const int end = InkEnd(frame.grab().toImage(), font.height() - 2);
  EXPECT_GT(end, font.horizontalAdvance(QStringLiteral("H ")));
  EXPECT_LE(end, font.horizontalAdvance(QStringLiteral("H &")) + 4);
}

// A drawing is ink on white paper, whatever the desktop.
TEST_F(Desktop, DrawingsKeepTheirWhitePaper) {
  for (const char* palette : {"light", "dark", "contrast"}) {
    QApplication::setPalette(*drive::PaletteByName(palette));
    ui::PictureView picture;
    picture.resize(60, 40);
    EXPECT_EQ(picture.grab().toImage().pixelColor(30, 20), QColor(Qt::white)) << palette;
  }
}

}  // namespace
