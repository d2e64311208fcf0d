#include "ui/text.h"

#include <QTextDocument>

namespace ui {
namespace {

// A tip longer than this many characters is broken into lines by the toolkit, which does so with
// rich text only.
constexpr int kLongTip = 70;

bool StandsBeforeWord(const QString& text, qsizetype mark) {
  if (mark + 1 >= text.size() || !text[mark + 1].isLetterOrNumber()) return false;
  return mark == 0 || !text[mark - 1].isLetterOrNumber();
}

// A path without a blank would make the page as wide as itself: in a word beyond any, a line may
// end anywhere.
QString Breakable(const QString& text) {
  constexpr int kLongestWord = 32;
  QString broken;
  int run = 0;
  for (const QChar character : text) {
    run = character.isSpace() ? 0 : run + 1;
    broken += character;
    if (run >= kLongestWord) broken += kBreak;
  }
  return broken;
}

}  // namespace

QString Shown(const std::string& text) {
  return QString::fromUtf8(text.data(), static_cast<qsizetype>(text.size()));
}

std::string Typed(const QString& text) { return text.toStdString(); }

QString Lines(const std::string& text) {
  QString lines = Shown(text);
  lines.replace(QLatin1String("\r\n"), QLatin1String("\n"));
  lines.replace(QLatin1Char('\r'), QLatin1Char('\n'));
  return lines;
}

QString LabelText(const std::string& text, bool accessKeys) {
  const QString lines = Lines(text);
  if (!accessKeys) return Breakable(lines);
  QString shown;
  for (qsizetype i = 0; i < lines.size(); ++i) {
    if (lines[i] == QLatin1Char('&')) {
      if (i + 1 < lines.size() && lines[i + 1] == QLatin1Char('&'))
        ++i;
      else if (StandsBeforeWord(lines, i))
        continue;
    }
    shown += lines[i];
  }
  return Breakable(shown);
}

QString TipText(const std::string& tip) {
  const QString lines = Lines(tip).trimmed();
  if (lines.size() <= kLongTip && !Qt::mightBeRichText(lines)) return lines;
  return QLatin1String("<qt>") + lines.toHtmlEscaped() + QLatin1String("</qt>");
}

QString DesignName(const std::string& controlName) {
  QString name = Shown(controlName);
  name.replace(QLatin1Char('('), QLatin1Char('_'));
  return name.remove(QLatin1Char(')'));
}

}  // namespace ui
