#include "ui/side_view.h"

#include <QCoreApplication>
#include <QEventLoop>
#include <QScreen>
#include <QVBoxLayout>
#include <QWindow>

#include "ui/text.h"

namespace ui {
namespace {

// 6804 by 2268 twips of 15 to the pixel.
constexpr QSize kSize(454, 151);

}  // namespace

SideView::SideView(QWidget& owner, const screen::SideWindow& form, QWidget& content)
    : QWidget(&owner, Qt::Tool | Qt::CustomizeWindowHint | Qt::WindowTitleHint |
                          Qt::WindowDoesNotAcceptFocus),
      form_(form) {
  setObjectName(Shown(form.name));
  setAttribute(Qt::WA_ShowWithoutActivating);
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(&content);
}

void SideView::Push() {
  if (form_.shown == isVisible()) return;
  if (form_.shown) {
    setWindowTitle(Shown(form_.caption));
    Place();
  }
  // Not every window system leaves the keyboard with the window that had it.
  const bool tookOver = isActiveWindow();
  setVisible(form_.shown);
  if (tookOver) parentWidget()->activateWindow();
}

void SideView::Place() {
  ensurePolished();
  resize(kSize.expandedTo(sizeHint()));
  QRect place = rect();
  place.moveCenter(screen()->availableGeometry().center());
  setGeometry(place);
}

// Only a window that the window system has put up can be painted. What the user does meanwhile
// waits until the handler has ended.
void SideView::PaintNow() {
  const QWindow* window = windowHandle();
  if (isVisible() && window && !window->isExposed())
    QCoreApplication::processEvents(QEventLoop::ExcludeUserInputEvents);
  repaint();
}

}  // namespace ui
