#include "ui/spoken.h"

#include "ui/text.h"

namespace ui {

QString SpokenCaption(const std::string& caption) {
  QString words = LabelText(caption, true).remove(kBreak).simplified();
  while (words.endsWith(QLatin1Char('=')) || words.endsWith(QLatin1Char(':'))) {
    words.chop(1);
    words = words.trimmed();
  }
  return words;
}

QString SpokenField(const std::string& caption, const QString& unit) {
  const QString words = SpokenCaption(caption);
  if (words.isEmpty() || unit.isEmpty()) return words + unit;
  return words + QLatin1String(", ") + unit;
}

void GiveName(QWidget& widget, const QString& name) {
  if (widget.accessibleName() != name) widget.setAccessibleName(name);
}

}  // namespace ui
