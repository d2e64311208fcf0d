#include "ui/picture_view.h"

#include <QAccessibleWidget>
#include <QMouseEvent>
#include <QPainter>

#include "ui/painter_surface.h"
#include "ui/text.h"

namespace ui {
namespace {

QAccessibleInterface* ReaderOf(const QString&, QObject* object) {
  auto* picture = qobject_cast<PictureView*>(object);
  return picture ? new QAccessibleWidget(picture, QAccessible::Graphic) : nullptr;
}

}  // namespace

PictureView::PictureView(QWidget* parent) : QWidget(parent) {
  setAttribute(Qt::WA_OpaquePaintEvent);
  setFocusPolicy(Qt::TabFocus);  // for who has it told
  [[maybe_unused]] static const bool known = [] {
    QAccessible::installFactory(ReaderOf);
    return true;
  }();
}

void PictureView::Attach(screen::Picture& picture) { picture_ = &picture; }

void PictureView::Refresh() {
  if (!picture_ || picture_->drawing.Revision() == shownRevision_) return;
  shownRevision_ = picture_->drawing.Revision();
  Describe();
  update();
}

void PictureView::Describe() {
  QStringList texts;
  for (const auto& item : picture_->drawing.Items())
    if (const auto* text = std::get_if<drawing::DrawnText>(&item))
      texts += Lines(text->text).simplified();
  // The name that a headline has shortened.
  if (!picture_->tip.empty()) texts += Shown(picture_->tip);
  setAccessibleDescription(texts.join(QLatin1String("; ")));
}

void PictureView::paintEvent(QPaintEvent*) {
  QPainter painter(this);
  painter.fillRect(rect(), Qt::white);
  if (picture_) PaintDrawing(painter, rect(), picture_->drawing);
  if (!hasFocus()) return;
  constexpr int kFrame = 2;
  painter.setPen(QPen(palette().color(QPalette::Highlight), kFrame));
  painter.drawRect(rect().adjusted(1, 1, -1, -1));
}

void PictureView::resizeEvent(QResizeEvent*) { TakeSize(); }

void PictureView::showEvent(QShowEvent*) { TakeSize(); }

void PictureView::TakeSize() {
  if (!picture_ || !isVisible() || size().isEmpty()) return;
  const QPointF scale = Twips({static_cast<double>(width()), static_cast<double>(height())});
  drawing::DrawingRecord& drawing = picture_->drawing;
  if (drawing.ScaleWidth() == scale.x() && drawing.ScaleHeight() == scale.y()) return;
  drawing.SetScale(scale.x(), scale.y());
  emit Resized();
}

void PictureView::mousePressEvent(QMouseEvent* event) {
  if (event->button() == Qt::LeftButton) emit Pressed(Twips(event->position()));
}

}  // namespace ui
