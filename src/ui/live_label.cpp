#include "ui/live_label.h"

#include <QAccessibleWidget>
#include <QGuiApplication>
#include <QPalette>

#include "ui/readable_colour.h"

namespace ui {
namespace {

// A name that changes is spoken where the role is that of an alert.
class Alert final : public QAccessibleWidget {
 public:
  explicit Alert(LiveLabel& line) : QAccessibleWidget(&line, QAccessible::AlertMessage) {}

  QString text(QAccessible::Text kind) const override {
    if (kind != QAccessible::Name) return QAccessibleWidget::text(kind);
    return static_cast<const QLabel*>(widget())->text();
  }
};

QAccessibleInterface* MakeAlert(const QString&, QObject* object) {
  auto* line = qobject_cast<LiveLabel*>(object);
  return line ? new Alert(*line) : nullptr;
}

// Windows has an event of its own for it; elsewhere the change of the name is the event.
void Announce(QObject& line) {
#ifdef Q_OS_WIN
  QAccessibleEvent event(&line, QAccessible::Alert);
#else
  QAccessibleEvent event(&line, QAccessible::NameChanged);
#endif
  QAccessible::updateAccessibility(&event);
}

}  // namespace

LiveLabel::LiveLabel(QWidget* parent) : QLabel(parent) {
  constexpr int kMargin = 4;
  setWordWrap(true);
  setTextFormat(Qt::PlainText);
  setMargin(kMargin);
  setIndent(2 * kMargin);
}

void LiveLabel::ShowBand(const std::optional<QColor>& band) {
  QPalette palette;
  if (band) {
    palette.setColor(QPalette::Window, *band);
    palette.setColor(QPalette::WindowText, TextOn(*band));
  }
  setPalette(palette);
  setAutoFillBackground(band.has_value());
  setFrameStyle(band ? QFrame::Box | QFrame::Plain : QFrame::NoFrame);
}

void LiveLabel::showEvent(QShowEvent* event) {
  QLabel::showEvent(event);
  if (!text().isEmpty()) Announce(*this);
}

void AnnounceLiveLabels() { QAccessible::installFactory(MakeAlert); }

}  // namespace ui
