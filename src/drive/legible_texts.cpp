// Which texts are cut, and which are too pale.
#include <QAbstractButton>
#include <QComboBox>
#include <QGroupBox>
#include <QHeaderView>
#include <QImage>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRegularExpression>
#include <QStyleOptionComboBox>
#include <QStyleOptionFrame>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTableView>

#include <map>

#include "drive/legible.h"
#include "ui/elided_label.h"
#include "ui/readable_colour.h"
#include "ui/title_frame.h"

namespace drive {
namespace {

// A text that ends behind its place is whole in the tip, or it is short enough for any place.
constexpr qsizetype kNeverElided = 12;

QString Needs(const QString& text, int needed, int has, const char* what) {
  if (needed <= has) return {};
  return QString("\"%1\" needs %2 of %3 pixels of %4")
      .arg(text.left(40))
      .arg(needed)
      .arg(has)
      .arg(QLatin1String(what));
}

QString InTip(const QWidget& widget, const QString& text, const QString& trouble) {
  QString tip = widget.toolTip();
  tip.remove(QLatin1String("<qt>")).remove(QLatin1String("</qt>"));
  const bool whole = text.size() > kNeverElided && tip.contains(text.trimmed().toHtmlEscaped());
  return whole ? QString() : trouble;
}

int WidestWord(const QLabel& label) {
  int widest = 0;
  for (const QString& word : label.text().split(QRegularExpression(QStringLiteral("[\\s\u200B]+"))))
    widest = std::max(widest, label.fontMetrics().horizontalAdvance(word));
  return widest;
}

QString CutLabel(const QLabel& label) {
  const QString text = label.text();
  if (label.wordWrap()) {
    const QString word = Needs(text, WidestWord(label), label.contentsRect().width(), "width");
    return word.isEmpty()
               ? Needs(text, label.heightForWidth(label.width()), label.height(), "height")
               : word;
  }
  const QString width = Needs(text, label.sizeHint().width(), label.width(), "width");
  if (!width.isEmpty() && qobject_cast<const ui::ElidedLabel*>(&label))
    return InTip(label, text, width);
  return width.isEmpty() ? Needs(text, label.sizeHint().height(), label.height(), "height") : width;
}

QString CutButton(const QAbstractButton& button) {
  const QSize hint = button.sizeHint();
  const QString width = Needs(button.text(), hint.width(), button.width(), "width");
  return width.isEmpty() ? Needs(button.text(), hint.height(), button.height(), "height") : width;
}

QString CutField(const QLineEdit& edit) {
  constexpr int kMargins = 4;  // of the toolkit, on both sides of the text
  QStyleOptionFrame option;
  option.initFrom(&edit);
  option.lineWidth = edit.style()->pixelMetric(QStyle::PM_DefaultFrameWidth, &option, &edit);
  const QRect room = edit.style()->subElementRect(QStyle::SE_LineEditContents, &option, &edit);
  const int needed = edit.fontMetrics().horizontalAdvance(edit.text()) + kMargins;
  const QString width = Needs(edit.text(), needed, room.width(), "width");
  if (!width.isEmpty()) return InTip(edit, edit.text(), width);
  return Needs(edit.text(), edit.fontMetrics().height(), room.height(), "height");
}

QString CutList(const QComboBox& box) {
  if (!box.lineEdit()) return {};
  const int needed = box.fontMetrics().horizontalAdvance(box.currentText()) + 4;
  return InTip(box, box.currentText(),
               Needs(box.currentText(), needed, box.lineEdit()->width(), "width"));
}

QString CutTitle(const QGroupBox& frame) {
  const auto* folded = qobject_cast<const ui::TitleFrame*>(&frame);
  int widest = 0;
  for (const QString& line : folded ? folded->TitleLines() : QStringList(frame.title()))
    widest = std::max(widest, frame.fontMetrics().horizontalAdvance(line.trimmed()));
  return Needs(frame.title(), widest, frame.width(), "width");
}

QString CutTable(const QTableView& table) {
  const QHeaderView& header = *table.horizontalHeader();
  for (int column = 0; column < header.count(); ++column) {
    const QString caption = table.model()->headerData(column, Qt::Horizontal).toString();
    const QString width =
        Needs(caption, header.sectionSizeHint(column), header.sectionSize(column), "width");
    if (!width.isEmpty()) return width;
    for (int row = 0; row < std::min(table.model()->rowCount(), 30); ++row) {
      const QModelIndex cell = table.model()->index(row, column);
      const QString text = cell.data().toString();
      const int needed = table.fontMetrics().horizontalAdvance(text);
      const QString cut = Needs(text, needed, header.sectionSize(column), "width") +
                          Needs(text, table.fontMetrics().height(), table.rowHeight(row), "height");
      if (!cut.isEmpty()) return cut;
    }
  }
  return {};
}

QColor Commonest(const QImage& picture, const QRect& place) {
  std::map<QRgb, int> counts;
  for (int y = place.top(); y <= place.bottom(); ++y)
    for (int x = place.left(); x <= place.right(); ++x) ++counts[picture.pixel(x, y)];
  QRgb best = 0;
  for (const auto& [colour, count] : counts)
    if (count > counts[best]) best = colour;
  return QColor::fromRgb(best);
}

// The colours of a selection are the desktop's.
bool Selected(const QWidget& widget) {
  if (auto* edit = qobject_cast<const QLineEdit*>(&widget)) return edit->hasSelectedText();
  auto* box = qobject_cast<const QComboBox*>(&widget);
  return box && box->lineEdit() && box->lineEdit()->hasSelectedText();
}

QPalette::ColorRole RoleOf(const QWidget& widget) {
  if (qobject_cast<const QLabel*>(&widget)) return widget.foregroundRole();
  if (qobject_cast<const QPushButton*>(&widget)) return QPalette::ButtonText;
  if (qobject_cast<const QLineEdit*>(&widget) || qobject_cast<const QComboBox*>(&widget) ||
      qobject_cast<const QTableView*>(&widget))
    return QPalette::Text;
  return QPalette::WindowText;
}

}  // namespace

QString CutText(const QWidget& widget) {
  if (auto* label = qobject_cast<const QLabel*>(&widget)) return CutLabel(*label);
  if (auto* button = qobject_cast<const QAbstractButton*>(&widget)) return CutButton(*button);
  if (auto* edit = qobject_cast<const QLineEdit*>(&widget)) return CutField(*edit);
  if (auto* box = qobject_cast<const QComboBox*>(&widget)) return CutList(*box);
  if (auto* frame = qobject_cast<const QGroupBox*>(&widget)) return CutTitle(*frame);
  if (auto* table = qobject_cast<const QTableView*>(&widget)) return CutTable(*table);
  return {};
}

// What can't be used is meant to be pale. A frame's title stands on the page, not in the frame.
QString PaleText(const QWidget& widget, const QImage& picture) {
  constexpr double kReadable = 4.5;
  constexpr double kLight = 14;
  constexpr double kHair = 0.2;
  constexpr int kEdge = 4;  // a button's outline, in pixels
  if (!widget.isEnabled() || Selected(widget) || qobject_cast<const QTabBar*>(&widget) ||
      qobject_cast<const QGroupBox*>(&widget))
    return {};
  const double dots = picture.devicePixelRatio();
  const QRect inView = widget.visibleRegion().boundingRect();
  const QPoint corner = widget.mapTo(widget.window(), inView.topLeft()) * dots;
  const QRect seen = QRect(corner, inView.size() * dots) & picture.rect();
  const bool button = qobject_cast<const QPushButton*>(&widget);
  const int edge = button ? qRound(kEdge * dots) : 0;
  const QRect face = seen.adjusted(edge, edge, -edge, -edge);
  if (face.isEmpty()) return {};
  const QColor text = widget.palette().color(RoleOf(widget));
  // A button's face goes over from one colour to another: beside its caption, not behind it.
  const QRect beside(face.topLeft(), QSize(1, face.height()));
  const QColor background = Commonest(picture, button ? beside : face);
  const double contrast = ui::Contrast(text, background);
  // Light paper shows the colours as they are stated: the green is a hair below on light grey.
  const double wanted =
      ui::Contrast(background, Qt::black) > kLight ? kReadable - kHair : kReadable;
  if (contrast >= wanted) return {};
  return QString("stands at %1:1 on %2").arg(contrast, 0, 'f', 2).arg(background.name());
}

}  // namespace drive
