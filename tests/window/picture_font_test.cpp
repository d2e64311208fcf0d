// The font that drawings are painted with is the one that they are laid out with.
#include <gtest/gtest.h>

#include <QFile>
#include <QImage>
#include <QPainter>
#include <QRawFont>

#include "drawing/font.h"
#include "drawing/font_table.h"
#include "tests/window/toolkit.h"
#include "ui/picture_font.h"

namespace {

QString PathOf(bool bold) {
  return bold ? QStringLiteral(":/fonts/LiberationSans-Bold.ttf")
              : QStringLiteral(":/fonts/LiberationSans-Regular.ttf");
}

QRawFont File(bool bold, double pixels) {
  return QRawFont(PathOf(bold), pixels, QFont::PreferNoHinting);
}

QImage Painted(const QString& text, bool bold, double pixels) {
  QImage image(1200, 120, QImage::Format_RGB32);
  image.fill(Qt::white);
  QPainter painter(&image);
  ui::PictureFont(pixels, bold).Draw(painter, {20, 80}, text);
  return image;
}

// The first and the last column with ink.
std::pair<int, int> Inked(const QImage& image) {
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

TEST(PictureFont, TravelsWithTheProgramAndItsLicenceBesideIt) {
  EXPECT_TRUE(ui::LoadPictureFont());
  QFile licence(QStringLiteral(":/fonts/LICENCE.txt"));
  ASSERT_TRUE(licence.open(QIODevice::ReadOnly));
  EXPECT_TRUE(licence.readAll().contains("SIL OPEN FONT LICENSE Version 1.1"));
}

// What the toolkit measures of the font's file against the table that layouts are made with.
TEST(PictureFont, TheTableHasTheWidthsOfTheFontItself) {
  for (const bool bold : {false, true}) {
    const drawing::FontTable& table = drawing::TheFontTable();
    const QRawFont file = File(bold, table.unitsPerEm);
    ASSERT_EQ(file.unitsPerEm(), table.unitsPerEm);
    EXPECT_NEAR(file.ascent(), table.ascent, 1);
    EXPECT_NEAR(file.descent(), table.descent, 1);
    for (const drawing::LetterWidths& letter : table.letters) {
      const QString text = QString::fromUcs4(&letter.character, 1);
      const QList<quint32> glyphs = file.glyphIndexesForString(text);
      ASSERT_EQ(glyphs.size(), 1);
      EXPECT_NE(glyphs[0], 0U) << text.toStdString();
      const double width = file.advancesForGlyphIndexes(glyphs)[0].x();
      EXPECT_NEAR(width, bold ? letter.bold : letter.regular, 0.5) << text.toStdString();
    }
  }
}

// With kerning, AV would be narrower than the measure; with hinting, small letters wider.
TEST(PictureFont, EachLetterStandsWhereTheMeasureHasIt) {
  const auto end = [](const QString& text, bool bold, double pixels) {
    return Inked(Painted(text, bold, pixels)).second - 20;
  };
  for (const bool bold : {false, true})
    for (const double pixels : {8.0, 10.5, 13.3, 40.0}) {
      const QString line = QStringLiteral("AVAVAV To fi 4.2696 mg/m\u00b3 = 1.06833E-09|");
      const double width = drawing::LineWidth(line.toStdString(), 1, bold) / 20 * pixels;
      const double bar = drawing::LetterWidth('|', bold) * pixels;
      EXPECT_NEAR(end(line, bold, pixels), width - bar / 2, 1.5 + bar / 4) << pixels;
    }
}

// A name may hold letters of any script.
TEST(PictureFont, AStrangeLetterKeepsToItsRoom) {
  const double room = drawing::kStrangeWidth * 40;
  const auto ink = Inked(Painted(QString::fromUtf8("\u7c89"), false, 40));
  EXPECT_GE(ink.first, 18);
  EXPECT_LE(ink.second, 20 + room + 1);
  const auto behind = Inked(Painted(QString::fromUtf8("\u7c89|"), false, 40));
  EXPECT_NEAR(behind.second, 20 + room + drawing::LetterWidth('|', false) * 20, 4);
}

}  // namespace
