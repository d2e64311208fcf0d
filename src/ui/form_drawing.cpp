#include "ui/form_drawing.h"

#include <QCheckBox>
#include <QComboBox>
#include <QFontInfo>
#include <QHeaderView>
#include <QLabel>
#include <QLineEdit>
#include <QPushButton>
#include <QRadioButton>
#include <QScrollBar>
#include <QStyle>
#include <QStyleOptionGroupBox>
#include <QTabBar>
#include <QTableView>

#include "drawing/inset.h"
#include "screen/picture.h"
#include "ui/elided_label.h"
#include "ui/live_label.h"
#include "ui/picture_view.h"
#include "ui/text.h"
#include "ui/title_frame.h"
#include "ui/up_down_pair.h"
#include "ui/verdict_label.h"

namespace ui {
namespace {

constexpr drawing::Colour kFaint{120, 120, 120};

// Without the mark of its access key.
QString WithoutMark(const QString& text) { return LabelText(Typed(text), true); }

}  // namespace

void FormDrawing::Add(const QWidget& root, QPointF corner) {
  root_ = &root;
  corner_ = corner;
  if (!AddOne(root)) AddWithin(root);
}

void FormDrawing::AddWithin(const QWidget& parent) {
  for (const QObject* each : parent.children()) {
    const auto* widget = qobject_cast<const QWidget*>(each);
    if (!widget || widget->isWindow() || !widget->isVisibleTo(root_)) continue;
    if (!AddOne(*widget)) AddWithin(*widget);
  }
}

bool FormDrawing::AddOne(const QWidget& widget) {
  if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
    AddLabel(*label);
  } else if (const auto* edit = qobject_cast<const QLineEdit*>(&widget)) {
    AddEdit(*edit);
  } else if (const auto* combo = qobject_cast<const QComboBox*>(&widget)) {
    AddCombo(*combo);
  } else if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) {
    AddButton(*button);
  } else if (const auto* tabs = qobject_cast<const QTabBar*>(&widget)) {
    AddTabs(*tabs);
  } else if (const auto* table = qobject_cast<const QTableView*>(&widget)) {
    AddTable(*table);
  } else if (const auto* picture = qobject_cast<const PictureView*>(&widget)) {
    AddPicture(*picture);
  } else if (const auto* frame = qobject_cast<const TitleFrame*>(&widget)) {
    AddFrame(*frame);
    return false;
  } else {
    // Arrows and bars say nothing on paper.
    return qobject_cast<const UpDownPair*>(&widget) || qobject_cast<const QScrollBar*>(&widget);
  }
  return true;
}

QRectF FormDrawing::PlaceOf(const QWidget& widget) const {
  return QRectF(corner_ + widget.mapTo(root_, QPoint()), QSizeF(widget.size()));
}

std::string FormDrawing::NameOf(const QWidget& widget) const {
  const screen::Control* control = controlOf_(&widget);
  return control ? control->name : Typed(widget.objectName());
}

PaperPen::TextLook FormDrawing::LookOf(const QWidget& widget) const {
  const screen::Control* control = controlOf_(&widget);
  PaperPen::TextLook look;
  look.pixels = QFontInfo(widget.font()).pixelSize();
  look.bold = widget.font().bold();
  if (control && control->font) look.family = Shown(control->font->family);
  if (!widget.isEnabled())
    look.colour = kFaint;
  else if (control && control->colour && control->kind == screen::Kind::Label)
    look.colour = *control->colour;
  return look;
}

void FormDrawing::AddLabel(const QLabel& label) {
  PaperPen::TextLook look = LookOf(label);
  look.alignment = label.alignment();
  look.wraps = label.wordWrap();
  if (qobject_cast<const ElidedLabel*>(&label)) look.elides = Qt::ElideMiddle;
  const auto* verdict = qobject_cast<const VerdictLabel*>(&label);
  if (verdict) AddSign(*verdict);
  const QRectF whole = PlaceOf(label);
  const bool framed = label.frameStyle() != QFrame::NoFrame && label.frameWidth() > 0;
  if (framed) pen_.Box(whole);
  const QRectF inner = QRectF(label.contentsRect()).translated(whole.topLeft());
  // As the toolkit has it where the designer says nothing.
  const int usual = framed ? label.fontMetrics().horizontalAdvance(QLatin1Char('x')) / 2 : 0;
  const int indent = label.indent() < 0 ? usual : label.indent();
  pen_.Text(inner.adjusted(indent, 0, 0, 0), label.text(), look, NameOf(label));
}

// Beside the first line of its words, as the window has it.
void FormDrawing::AddSign(const VerdictLabel& label) {
  if (label.Sign() == screen::Sign::None) return;
  const double size = label.fontMetrics().ascent();
  const QRectF place = PlaceOf(label);
  const QPointF corner(place.left(), place.center().y() - size / 2);
  const auto at = [&](double x, double y) { return corner + QPointF(x, y) * size; };
  const drawing::Colour colour = LookOf(label).colour;
  const double width = size * 0.18;
  if (label.Sign() == screen::Sign::Tick) {
    pen_.Line(at(0.12, 0.55), at(0.4, 0.84), colour, width);
    pen_.Line(at(0.4, 0.84), at(0.9, 0.16), colour, width);
  } else {
    pen_.Line(at(0.15, 0.15), at(0.85, 0.85), colour, width);
    pen_.Line(at(0.85, 0.15), at(0.15, 0.85), colour, width);
  }
}

void FormDrawing::AddEdit(const QLineEdit& edit) {
  constexpr double kEdge = 4;
  const QRectF place = PlaceOf(edit);
  pen_.Box(place, kFaint);
  PaperPen::TextLook look = LookOf(edit);
  look.alignment = (edit.alignment() & Qt::AlignHorizontal_Mask) | Qt::AlignVCenter;
  pen_.Text(place.adjusted(kEdge, 0, -kEdge, 0), edit.displayText(), look, NameOf(edit));
}

void FormDrawing::AddCombo(const QComboBox& combo) {
  constexpr double kEdge = 4;
  const QRectF place = PlaceOf(combo);
  pen_.Box(place, kFaint);
  pen_.Text(place.adjusted(kEdge, 0, -kEdge, 0), combo.currentText(), LookOf(combo), NameOf(combo));
}

void FormDrawing::AddButton(const QAbstractButton& button) {
  const QRectF place = PlaceOf(button);
  PaperPen::TextLook look = LookOf(button);
  look.wraps = true;
  if (!button.isCheckable() || qobject_cast<const QPushButton*>(&button)) {
    pen_.Box(place);
    look.alignment = Qt::AlignCenter;
    pen_.Text(place.adjusted(2, 0, -2, 0), WithoutMark(button.text()), look, NameOf(button));
    return;
  }
  constexpr double kMark = 6;  // half of its width
  const QPointF middle(place.left() + kMark + 1, place.center().y());
  if (qobject_cast<const QRadioButton*>(&button)) {
    pen_.Circle(middle, kMark);
    if (button.isChecked())
      for (double radius = 0.5; radius <= kMark / 2; ++radius) pen_.Circle(middle, radius);
  } else {
    pen_.Box(QRectF(middle.x() - kMark, middle.y() - kMark, 2 * kMark, 2 * kMark));
    if (button.isChecked()) {
      pen_.Line(middle + QPointF(-4, 0), middle + QPointF(-1, 3), {}, 2);
      pen_.Line(middle + QPointF(-1, 3), middle + QPointF(4, -4), {}, 2);
    }
  }
  pen_.Text(place.adjusted(3 * kMark, 0, 0, 0), WithoutMark(button.text()), look, NameOf(button));
}

void FormDrawing::AddFrame(const TitleFrame& frame) {
  QStyleOptionGroupBox option;
  option.initFrom(&frame);
  option.text = frame.title();
  option.textAlignment = frame.alignment();
  option.subControls = QStyle::SC_GroupBoxFrame | QStyle::SC_GroupBoxLabel;
  const QStringList lines = frame.TitleLines();
  const double last =
      frame.style()
          ->subControlRect(QStyle::CC_GroupBox, &option, QStyle::SC_GroupBoxLabel, &frame)
          .bottom();
  const QRectF whole = PlaceOf(frame);
  QRectF box = whole;
  if (!frame.title().isEmpty()) {
    const double above = static_cast<double>(lines.size() - 1) * frame.fontMetrics().lineSpacing();
    box.setTop(whole.top() + above + last + 1);
    PaperPen::TextLook look = LookOf(frame);
    look.alignment = Qt::AlignLeft | Qt::AlignBottom;
    const QRectF title(whole.left(), whole.top(), whole.width(), box.top() - whole.top());
    pen_.Text(title, WithoutMark(lines.join(QLatin1Char('\n'))), look, NameOf(frame));
  }
  pen_.Box(box, kFaint);
}

void FormDrawing::AddTabs(const QTabBar& tabs) {
  const QPointF corner = PlaceOf(tabs).topLeft();
  for (int i = 0; i < tabs.count(); ++i) {
    const QRectF place = QRectF(tabs.tabRect(i)).translated(corner);
    PaperPen::TextLook look = LookOf(tabs);
    look.alignment = Qt::AlignCenter;
    look.bold = i == tabs.currentIndex();
    look.wraps = true;
    pen_.Box(place, kFaint);
    pen_.Text(place.adjusted(2, 0, -2, 0), WithoutMark(tabs.tabText(i)), look, "Tab");
  }
}

void FormDrawing::AddTable(const QTableView& table) {
  const QRectF place = PlaceOf(table);
  pen_.Box(place, kFaint);
  const QHeaderView& header = *table.horizontalHeader();
  const double height = header.height();
  for (int column = 0; column < header.count(); ++column) {
    PaperPen::TextLook look = LookOf(table);
    look.alignment = Qt::AlignCenter;
    look.wraps = true;
    const QRectF cell(place.left() + header.x() + header.sectionViewportPosition(column),
                      place.top() + header.y(), header.sectionSize(column), height);
    pen_.Box(cell, kFaint);
    pen_.Text(cell.adjusted(2, 0, -2, 0),
              table.model()->headerData(column, Qt::Horizontal).toString(), look, "Header");
  }
  AddRows(table);
}

// Those that the window shows.
void FormDrawing::AddRows(const QTableView& table) {
  constexpr double kEdge = 4;
  const QAbstractItemModel& model = *table.model();
  const QRect viewport = table.viewport()->rect();
  const QPointF corner = PlaceOf(table).topLeft() + table.viewport()->mapTo(&table, QPoint());
  for (int row = std::max(table.rowAt(0), 0); row < model.rowCount(); ++row) {
    if (table.visualRect(model.index(row, 0)).center().y() > viewport.bottom()) return;
    for (int column = 0; column < model.columnCount(); ++column) {
      const QModelIndex index = model.index(row, column);
      const QRectF cell = QRectF(table.visualRect(index)).translated(corner);
      const QVariant alignment = index.data(Qt::TextAlignmentRole);
      PaperPen::TextLook look = LookOf(table);
      if (alignment.isValid()) look.alignment = alignment.value<Qt::Alignment>();
      pen_.Text(cell.adjusted(kEdge, 0, -kEdge, 0), index.data().toString(), look, "Cell");
    }
  }
}

void FormDrawing::AddPicture(const PictureView& picture) {
  const screen::Control* control = controlOf_(&picture);
  if (!control) return;
  const drawing::DrawingRecord& drawn = static_cast<const screen::Picture&>(*control).drawing;
  const QPointF corner = PlaceOf(picture).topLeft() * drawing::kTwipsPerPixel;
  drawing::Inset part(surface_, {corner.x(), corner.y()}, 1, drawn.ScaleWidth(),
                      drawn.ScaleHeight());
  drawn.ReplayOn(part);
}

}  // namespace ui
