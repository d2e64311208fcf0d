#pragma once

#include <QWidget>

#include <functional>

#include "screen/control.h"
#include "ui/paper_pen.h"

class QAbstractButton;
class QComboBox;
class QLabel;
class QLineEdit;
class QPushButton;
class QTabBar;
class QTableView;

namespace ui {

class LiveLabel;
class PictureView;
class TitleFrame;
class VerdictLabel;

// Draws the widgets of a screen as lines and texts, in dark ink whatever the colours of the
// desktop. What the window shows of a text stands there as a text.
class FormDrawing {
 public:
  using ControlOf = std::function<const screen::Control*(const QWidget* widget)>;

  FormDrawing(drawing::DrawSurface& surface, ControlOf controlOf)
      : surface_(surface), pen_(surface), controlOf_(std::move(controlOf)) {}

  // The widget with all that can be seen within it, its top left corner at `corner` pixels.
  void Add(const QWidget& root, QPointF corner);

 private:
  void AddWithin(const QWidget& parent);
  // True when nothing within the widget is to be drawn besides.
  bool AddOne(const QWidget& widget);
  void AddLabel(const QLabel& label);
  void AddSign(const VerdictLabel& label);
  void AddEdit(const QLineEdit& edit);
  void AddCombo(const QComboBox& combo);
  void AddButton(const QAbstractButton& button);
  void AddFrame(const TitleFrame& frame);
  void AddTabs(const QTabBar& tabs);
  void AddTable(const QTableView& table);
  void AddRows(const QTableView& table);
  void AddPicture(const PictureView& picture);

  QRectF PlaceOf(const QWidget& widget) const;
  PaperPen::TextLook LookOf(const QWidget& widget) const;
  std::string NameOf(const QWidget& widget) const;

  drawing::DrawSurface& surface_;
  PaperPen pen_;
  ControlOf controlOf_;
  const QWidget* root_ = nullptr;
  QPointF corner_;
};

}  // namespace ui
