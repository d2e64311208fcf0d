#include "ui/splash.h"

#include <QGuiApplication>
#include <QScreen>

#include <exception>

#include "catalog/catalog.h"
#include "start/version.h"
#include "ui/text.h"

namespace ui {
namespace {

// A text that is missing leaves its line empty: no failure in the start is told or stops it.
QString Text(int id) {
  try {
    return Lines(LoadResString(id)).trimmed();
  } catch (const std::exception&) {
    return {};
  }
}

}  // namespace

Splash::Splash() : QFrame(nullptr, Qt::SplashScreen | Qt::FramelessWindowHint) {
  setFrameShape(QFrame::Box);
  setObjectName(QStringLiteral("frmSplash"));
  setAttribute(Qt::WA_ShowWithoutActivating);
  column_ = new QVBoxLayout(this);
  column_->setContentsMargins(48, 36, 48, 36);
  column_->setSpacing(8);
  QLabel* product = AddLine("lblProductName", Text(17));
  QFont large = product->font();
  large.setPointSizeF(2.4 * large.pointSizeF());
  large.setBold(true);
  product->setFont(large);
  AddLine("lblVersion", Text(2) + QLatin1Char(' ') + QLatin1String(start::kVersion));
  AddLine("lblPlatform", Text(3));
  column_->addSpacing(16);
  AddLine("lblCompany", Text(5));
  AddLine("lblAddress", Text(6));
}

QLabel* Splash::AddLine(const char* name, const QString& text) {
  auto* label = new QLabel(text, this);
  label->setObjectName(QLatin1String(name));
  label->setTextFormat(Qt::PlainText);
  column_->addWidget(label);
  return label;
}

void Splash::Present() {
  adjustSize();
  if (const QScreen* screen = QGuiApplication::primaryScreen()) {
    const QRect place = screen->availableGeometry();
    move(place.center() - rect().center());
  }
  show();
  repaint();
}

}  // namespace ui
