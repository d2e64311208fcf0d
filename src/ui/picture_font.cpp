#include "ui/picture_font.h"

#include <QCoreApplication>
#include <QFontDatabase>
#include <QFontMetricsF>
#include <QGlyphRun>
#include <QPaintEngine>
#include <QPointer>

#include <algorithm>

#include "drawing/font.h"

// A resource that a library brings along must be named once outside of every namespace.
static void NameResource() { Q_INIT_RESOURCE(fonts); }

namespace ui {
namespace {

// The files as they were read, for as long as the toolkit lives.
class FontFiles final : public QObject {
 public:
  explicit FontFiles(QObject* parent) : QObject(parent) {
    NameResource();
    regular = Read(QStringLiteral(":/fonts/LiberationSans-Regular.ttf"));
    bold = Read(QStringLiteral(":/fonts/LiberationSans-Bold.ttf"));
    fixed = Known(QStringLiteral(":/fonts/LiberationMono-Regular.ttf"));
    regularInFile = Known(QStringLiteral(":/fonts/LiberationSans-Regular.ttf"));
    boldInFile = Known(QStringLiteral(":/fonts/LiberationSans-Bold.ttf"));
    boldInFile.setBold(true);
  }

  QRawFont regular;
  QRawFont bold;
  // The same for a document that takes its fonts along, which the toolkit does by their names.
  QFont regularInFile;
  QFont boldInFile;
  QFont fixed;

 private:
  // Without hinting letters keep their widths and shapes at every size.
  static QRawFont Read(const QString& path) { return QRawFont(path, kAnySize, kHinting); }
  static QFont Known(const QString& path) {
    const int known = QFontDatabase::addApplicationFont(path);
    QFont font(QFontDatabase::applicationFontFamilies(known).value(0));
    font.setPixelSize(kAnySize);
    font.setHintingPreference(kHinting);
    return font;
  }

  static constexpr int kAnySize = 12;
  static constexpr QFont::HintingPreference kHinting = QFont::PreferNoHinting;
};

const FontFiles& TheFiles() {
  static QPointer<FontFiles> files;
  if (!files) files = new FontFiles(QCoreApplication::instance());
  return *files;
}

QString AsText(char32_t letter) { return QString::fromUcs4(&letter, 1); }

}  // namespace

bool LoadPictureFont() {
  const FontFiles& files = TheFiles();
  return files.regular.isValid() && files.bold.isValid() && !files.fixed.family().isEmpty();
}

PictureFont::PictureFont(double pixels, bool bold)
    : pixels_(pixels), bold_(bold), font_(bold ? TheFiles().bold : TheFiles().regular) {
  font_.setPixelSize(pixels);
}

double PictureFont::Width(const QString& line) const {
  double width = 0;
  for (const char32_t letter : line.toStdU32String()) width += drawing::LetterWidth(letter, bold_);
  return width * pixels_;
}

QRawFont PictureFont::FontFor(const QPainter& painter) const {
  if (painter.paintEngine()->type() != QPaintEngine::Pdf) return font_;
  QRawFont font = QRawFont::fromFont(bold_ ? TheFiles().boldInFile : TheFiles().regularInFile);
  font.setPixelSize(pixels_);
  return font;
}

void PictureFont::Draw(QPainter& painter, QPointF start, const QString& line) const {
  const QRawFont font = FontFor(painter);
  QList<quint32> glyphs;
  QList<QPointF> places;
  double along = 0;
  for (const char32_t letter : line.toStdU32String()) {
    const QPointF at(along, 0);
    along += drawing::LetterWidth(letter, bold_) * pixels_;
    if (!drawing::HasLetter(letter)) {
      DrawStrange(painter, start + at, letter);
      continue;
    }
    const QList<quint32> found = font.glyphIndexesForString(AsText(letter));
    glyphs += found.value(0);
    places += at;
  }
  QGlyphRun run;
  run.setRawFont(font);
  run.setGlyphIndexes(glyphs);
  run.setPositions(places);
  painter.drawGlyphRun(start, run);
}

// A letter that this font has not, from the one that the system finds, in the room kept for it.
void PictureFont::DrawStrange(QPainter& painter, QPointF at, char32_t letter) const {
  QFont font;
  font.setPixelSize(std::max(1, qRound(pixels_)));
  font.setBold(bold_);
  const QString text = AsText(letter);
  const double width = QFontMetricsF(font, painter.device()).horizontalAdvance(text);
  const double room = drawing::kStrangeWidth * pixels_;
  painter.save();
  painter.translate(at);
  if (width > room) painter.scale(room / width, 1);
  painter.setFont(font);
  painter.drawText(QPointF(), text);
  painter.restore();
}

}  // namespace ui
