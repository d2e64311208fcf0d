// What a drawing looks like once it is painted: on the screen, in a file, on paper.
#include <gtest/gtest.h>
#include <sys/stat.h>

#include <QApplication>
#include <QDir>
#include <QFile>
#include <QImage>
#include <QPainter>
#include <QTemporaryDir>
#include <QtTest/QTest>
#include <filesystem>

#include "drawing/font.h"
#include "screen/picture.h"
#include "tests/screen/recording_ports.h"
#include "tests/window/toolkit.h"
#include "ui/painter_surface.h"
#include "ui/pdf_pages.h"
#include "ui/picture_file.h"
#include "ui/picture_view.h"

namespace {

using drawing::Across;
using drawing::DrawingRecord;

constexpr drawing::Colour kRed{255, 0, 0};

class Painting : public testing::Test {
 protected:
  // Paints the drawing at `factor` dots to the pixel.
  QImage Paint(int factor) const {
    const double dots = factor / 15.0;
    QImage image(QSizeF(drawing_.ScaleWidth() * dots, drawing_.ScaleHeight() * dots).toSize(),
                 QImage::Format_RGB32);
    image.fill(Qt::gray);
    QPainter painter(&image);
    ui::PaintDrawing(painter, image.rect(), drawing_);
    return image;
  }
  // Where the ink of a row of dots begins and ends.
  static std::pair<int, int> Inked(const QImage& image) {
    int first = image.width();
    int last = -1;
    for (int x = 0; x < image.width(); ++x)
      for (int y = 0; y < image.height(); ++y)
        if (qGray(image.pixel(x, y)) < 200) {
          first = std::min(first, x);
          last = std::max(last, x);
        }
    return {first, last};
  }

  DrawingRecord drawing_{3000, 1500};  // 200 by 100 pixels
};

TEST_F(Painting, ThePaperIsWhite) {
  const QImage image = Paint(1);
  EXPECT_EQ(image.pixelColor(0, 0), QColor(Qt::white));
  EXPECT_EQ(image.pixelColor(199, 99), QColor(Qt::white));
}

TEST_F(Painting, LinesAndPointsStandAtTheirTwips) {
  drawing_.Line({300, 750}, {2700, 750}, kRed, 60);
  drawing_.Dot({1500, 300}, {0, 0, 255});
  for (const int factor : {1, 2, 3}) {
    const QImage image = Paint(factor);
    EXPECT_EQ(image.pixelColor(100 * factor, 50 * factor), QColor(255, 0, 0)) << factor;
    EXPECT_EQ(image.pixelColor(15 * factor, 50 * factor), QColor(Qt::white)) << factor;
    EXPECT_EQ(image.pixelColor(100 * factor, 60 * factor), QColor(Qt::white)) << factor;
    EXPECT_LT(image.pixelColor(100 * factor, 20 * factor).red(), 120) << factor;
    EXPECT_GT(image.pixelColor(100 * factor, 20 * factor).blue(), 200) << factor;
  }
}

// At a scale of 2 a hairline is as thin on the glass as at 1, and its edges are as sharp.
TEST_F(Painting, ALineIsMadeInTheDotsOfTheDevice) {
  drawing_.Line({300, 750}, {2700, 750}, {}, 15);
  const QImage image = Paint(4);
  int inked = 0;
  for (int y = 0; y < image.height(); ++y) inked += qGray(image.pixel(400, y)) < 128;
  EXPECT_EQ(inked, 4);
}

TEST_F(Painting, ATextStandsLeftOfCentredOnAndRightOfItsPoint) {
  const auto inked = [this](Across across) {
    drawing_.Clear();
    drawing_.Text({1500, 300}, "MMMM", {across}, "Label");
    return Inked(Paint(1));
  };
  const auto left = inked(Across::Left);
  const auto centre = inked(Across::Centre);
  const auto right = inked(Across::Right);
  EXPECT_NEAR(left.first, 100, 3);
  EXPECT_NEAR((centre.first + centre.second) / 2.0, 100, 3);
  EXPECT_NEAR(right.second, 100, 3);
}

TEST_F(Painting, ATextIsAsLargeOnEveryDevice) {
  drawing_.Text({150, 150}, "Lognormal density", {}, "Label");
  const auto one = Inked(Paint(1));
  const auto four = Inked(Paint(4));
  EXPECT_NEAR(four.second / 4.0, one.second, 0.06 * one.second);
}

class SavedPicture : public Painting {
 protected:
  std::string Path(const char* name) const {
    return folder_.filePath(QString::fromUtf8(name)).toStdString();
  }
  QTemporaryDir folder_;
};

TEST_F(SavedPicture, IsABitmapAtTwiceTheResolutionOfTheWindow) {
  drawing_.Line({300, 750}, {2700, 750}, kRed, 60);
  ASSERT_TRUE(ui::PictureFile().Write(Path("picture.bmp"), drawing_));
  QFile file(QString::fromStdString(Path("picture.bmp")));
  ASSERT_TRUE(file.open(QIODevice::ReadOnly));
  EXPECT_EQ(file.read(2), QByteArray("BM"));
  const QImage image(QString::fromStdString(Path("picture.bmp")));
  EXPECT_EQ(image.size(), QSize(400, 200));
  EXPECT_EQ(image.pixelColor(200, 100), QColor(255, 0, 0));
  EXPECT_EQ(image.pixelColor(5, 5), QColor(Qt::white));
}

TEST_F(SavedPicture, TakesTheNameAsItIsInAnyLanguage) {
  ASSERT_TRUE(ui::PictureFile().Write(Path("Schweißrauch µ.bmp"), drawing_));
  EXPECT_FALSE(QImage(folder_.filePath(QString::fromUtf8("Schweißrauch µ.bmp"))).isNull());
}

// A half-written picture in the place of a good one would be worse than none.
TEST_F(SavedPicture, ThatCannotBeWrittenLeavesNothingBehind) {
  EXPECT_FALSE(ui::PictureFile().Write(Path("nowhere/picture.bmp"), drawing_));
  ASSERT_TRUE(QDir(folder_.path()).mkdir(QStringLiteral("a_folder.bmp")));
  EXPECT_FALSE(ui::PictureFile().Write(Path("a_folder.bmp"), drawing_));
  const QStringList left = QDir(folder_.path()).entryList(QDir::AllEntries | QDir::NoDotAndDotDot);
  EXPECT_EQ(left, QStringList(QStringLiteral("a_folder.bmp")));
}

TEST_F(SavedPicture, ReplacesTheOneBefore) {
  ASSERT_TRUE(ui::PictureFile().Write(Path("picture.bmp"), drawing_));
  drawing_.SetScale(1500, 1500);
  ASSERT_TRUE(ui::PictureFile().Write(Path("picture.bmp"), drawing_));
  EXPECT_EQ(QImage(QString::fromStdString(Path("picture.bmp"))).size(), QSize(200, 200));
}

// As a series: the same routine writes both.
TEST_F(SavedPicture, ReplacesNoPipeAndNoRingOfLinks) {
  ASSERT_EQ(::mkfifo(Path("pipe").c_str(), 0666), 0);
  std::filesystem::create_symlink("b.bmp", Path("a.bmp"));
  std::filesystem::create_symlink("a.bmp", Path("b.bmp"));
  EXPECT_FALSE(ui::PictureFile().Write(Path("pipe"), drawing_));
  EXPECT_FALSE(ui::PictureFile().Write(Path("a.bmp"), drawing_));
  EXPECT_FALSE(ui::PictureFile().Write("/dev/full", drawing_));
  EXPECT_TRUE(std::filesystem::is_fifo(Path("pipe")));
  EXPECT_TRUE(std::filesystem::is_symlink(Path("a.bmp")));
}

TEST_F(SavedPicture, KeepsTheRightsOfTheFileAndTheLinkToIt) {
  ASSERT_TRUE(ui::PictureFile().Write(Path("real.bmp"), drawing_));
  ASSERT_EQ(::chmod(Path("real.bmp").c_str(), 0640), 0);
  std::filesystem::create_symlink("real.bmp", Path("link.bmp"));
  ASSERT_TRUE(ui::PictureFile().Write(Path("link.bmp"), drawing_));
  EXPECT_TRUE(std::filesystem::is_symlink(Path("link.bmp")));
  EXPECT_EQ(std::filesystem::status(Path("real.bmp")).permissions(), std::filesystem::perms(0640));
}

// A page of the printer, upright or lying as the drawing is.
TEST_F(Painting, IsPrintedOnAPageOfItsSizeForEachDrawing) {
  drawing_.Line({300, 750}, {2700, 750}, kRed, 60);
  drawing_.Text({1500, 300}, "GM", {}, "GMLbl");
  const DrawingRecord upright(1500, 3000);
  const QByteArray pdf = ui::PdfOf({"Pages", {drawing_, upright}});
  EXPECT_TRUE(pdf.startsWith("%PDF"));
  EXPECT_TRUE(pdf.contains("/Count 2"));
  EXPECT_TRUE(pdf.contains("/MediaBox [0 0 150.000000 75.000000]")) << "3000 by 1500 twips";
  EXPECT_TRUE(pdf.contains("/MediaBox [0 0 75.000000 150.000000]"));
}

TEST_F(Painting, APrintedTextTakesItsFontAlong) {
  drawing_.Text({1500, 300}, "GM", {}, "GMLbl");
  drawing_.Text({1500, 600}, "column 85", {.family = drawing::kFixedFont}, "Line");
  const QByteArray pdf = ui::PdfOf({"Page", {drawing_}});
  EXPECT_TRUE(pdf.contains("LiberationSans"));
  EXPECT_TRUE(pdf.contains("LiberationMono"));
  EXPECT_TRUE(pdf.contains("/FontFile2"));
  EXPECT_FALSE(pdf.contains("/Subtype /Image")) << "no bitmap";
}

TEST_F(Painting, AJobWithoutAPageIsNoDocument) {
  EXPECT_TRUE(ui::PdfOf({"Nothing", {}}).isEmpty());
}

class PictureOnTheScreen : public Painting {
 protected:
  PictureOnTheScreen() {
    view_.Attach(picture_);
    QObject::connect(&view_, &ui::PictureView::Resized, [this] { ++resized_; });
    QObject::connect(&view_, &ui::PictureView::Pressed, [this](QPointF at) { pressed_ = at; });
  }
  void Show(int width, int height) {
    view_.resize(width, height);
    view_.show();
    QApplication::processEvents();
  }

  recording::Ports ports_;
  screen::Form form_{"PictureForm", ports_.ports};
  screen::Picture picture_{form_, "PicPlot"};
  ui::PictureView view_;
  int resized_ = 0;
  QPointF pressed_;
};

TEST_F(PictureOnTheScreen, TellsItsScreenTheSizeItHasInTwips) {
  Show(600, 400);
  EXPECT_EQ(picture_.drawing.ScaleWidth(), 9000);
  EXPECT_EQ(picture_.drawing.ScaleHeight(), 6000);
  EXPECT_EQ(resized_, 1);
  view_.resize(640, 400);
  QApplication::processEvents();
  EXPECT_EQ(picture_.drawing.ScaleWidth(), 9600);
  EXPECT_EQ(resized_, 2);
}

TEST_F(PictureOnTheScreen, TellsNothingWhileItIsHidden) {
  view_.resize(600, 400);
  QApplication::processEvents();
  EXPECT_EQ(resized_, 0);
  Show(600, 400);
  view_.hide();
  view_.resize(700, 400);
  QApplication::processEvents();
  EXPECT_EQ(resized_, 1);
}

TEST_F(PictureOnTheScreen, AClickIsTakenWhereItIsInTwips) {
  Show(600, 400);
  QTest::mouseClick(&view_, Qt::LeftButton, {}, QPoint(20, 100));
  EXPECT_EQ(pressed_, QPointF(300, 1500));
  QTest::mouseClick(&view_, Qt::RightButton, {}, QPoint(40, 100));
  EXPECT_EQ(pressed_, QPointF(300, 1500)) << "the other button is no click";
}

TEST_F(PictureOnTheScreen, ShowsAChangeOfTheDrawing) {
  Show(600, 400);
  EXPECT_EQ(view_.grab().toImage().pixelColor(300, 200), QColor(Qt::white));
  picture_.drawing.Line({0, 3000}, {9000, 3000}, kRed, 90);
  view_.Refresh();
  EXPECT_EQ(view_.grab().toImage().pixelColor(300, 200), QColor(255, 0, 0));
}

TEST_F(PictureOnTheScreen, TellsItsTextsToAScreenReader) {
  picture_.drawing.Text({0, 0}, "GM=     2 ppm\r50%", {}, "GMLbl");
  picture_.drawing.Text({0, 0}, "1.5*GM*GSD", {}, "XasLbl(0)");
  view_.Refresh();
  EXPECT_EQ(view_.accessibleDescription().toStdString(), "GM= 2 ppm 50%; 1.5*GM*GSD");
  picture_.tip = "A name that its headline has no room for";
  picture_.drawing.Dot({0, 0}, {});
  view_.Refresh();
  EXPECT_EQ(view_.accessibleDescription().toStdString(),
            "GM= 2 ppm 50%; 1.5*GM*GSD; A name that its headline has no room for");
}

}  // namespace
