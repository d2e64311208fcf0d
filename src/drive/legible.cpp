#include "drive/legible.h"

#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPixmap>
#include <QScrollArea>
#include <QScrollBar>
#include <QTabBar>
#include <QTableView>

namespace drive {
namespace {

QString Named(const QWidget& widget) {
  const QString name = widget.objectName();
  return name.isEmpty() ? QString::fromLatin1(widget.metaObject()->className()) : name;
}

QRect Place(const QWidget& widget) {
  return {widget.mapTo(widget.window(), QPoint()), widget.size()};
}

bool HasText(const QWidget& widget) {
  if (auto* label = qobject_cast<const QLabel*>(&widget)) return !label->text().trimmed().isEmpty();
  if (auto* button = qobject_cast<const QAbstractButton*>(&widget))
    return !button->text().isEmpty();
  if (auto* frame = qobject_cast<const QGroupBox*>(&widget)) return !frame->title().isEmpty();
  if (qobject_cast<const QLineEdit*>(&widget))
    return !qobject_cast<const QComboBox*>(widget.parentWidget());
  return qobject_cast<const QComboBox*>(&widget) || qobject_cast<const QTableView*>(&widget) ||
         qobject_cast<const QTabBar*>(&widget);
}

// What there is of `one` beside `other`: a page that is scrolled ends with its area.
QRect PlaceBeside(const QWidget& one, const QWidget& other) {
  QRect place = Place(one);
  for (const QWidget* at = one.parentWidget(); at && !at->isAncestorOf(&other);
       at = at->parentWidget())
    if (qobject_cast<const QScrollArea*>(at)) place &= Place(*at);
  return place;
}

bool Around(const QWidget& one, const QWidget& other) {
  return one.isAncestorOf(&other) || other.isAncestorOf(&one);
}

// The layout of a page gives each widget a place of its own, unless there is too little of it.
void FindOverlaps(const std::vector<QWidget*>& widgets, std::vector<QString>& found) {
  for (std::size_t i = 0; i < widgets.size(); ++i)
    for (std::size_t j = i + 1; j < widgets.size(); ++j) {
      const QWidget& one = *widgets[i];
      const QWidget& other = *widgets[j];
      const bool strip = qobject_cast<const QTabBar*>(&one) || qobject_cast<const QTabBar*>(&other);
      if (!strip && !Around(one, other) &&
          PlaceBeside(one, other).intersects(PlaceBeside(other, one)))
        found.push_back(Named(one) + " lies over " + Named(other));
    }
}

// A page as wide as the window reads from top to bottom; a picture may need its room.
void FindWidePages(const QWidget& window, std::vector<QString>& found) {
  for (const auto* area : window.findChildren<QScrollArea*>()) {
    if (!area->isVisible() || !area->horizontalScrollBar()->isVisible()) continue;
    found.push_back(Named(*area->widget()) + " needs " + QString::number(area->widget()->width()) +
                    " of " + QString::number(area->viewport()->width()) + " pixels of width");
  }
}

void FindLostFocus(const QWidget& window, std::vector<QString>& found) {
  const QWidget* focus = window.focusWidget();
  if (!focus || !focus->isVisible() || qobject_cast<const QTabBar*>(focus)) return;
  for (const QWidget* at = focus->parentWidget(); at; at = at->parentWidget()) {
    const auto* area = qobject_cast<const QScrollArea*>(at);
    if (!area) continue;
    const QRect place(focus->mapTo(area->viewport(), QPoint()), focus->size());
    const QRect seen = place & area->viewport()->rect();
    if (seen.height() < std::min(place.height(), area->viewport()->height()))
      found.push_back("the focus is out of sight on " + Named(*focus));
  }
}

}  // namespace

std::vector<QWidget*> TextWidgets(QWidget& window) {
  std::vector<QWidget*> found;
  for (QWidget* widget : window.findChildren<QWidget*>())
    if (widget->isVisible() && widget->window() == &window && HasText(*widget))
      found.push_back(widget);
  return found;
}

std::vector<QString> Illegible(QWidget& window) {
  std::vector<QString> found;
  const std::vector<QWidget*> widgets = TextWidgets(window);
  const QImage picture = window.grab().toImage();
  for (const QWidget* widget : widgets)
    for (const QString& trouble : {CutText(*widget), PaleText(*widget, picture)})
      if (!trouble.isEmpty()) found.push_back(Named(*widget) + ": " + trouble);
  FindOverlaps(widgets, found);
  FindWidePages(window, found);
  FindLostFocus(window, found);
  return found;
}

}  // namespace drive
