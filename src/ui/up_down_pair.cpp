#include "ui/up_down_pair.h"

#include <QToolButton>
#include <QVBoxLayout>

#include "catalog/own_texts.h"

namespace ui {

UpDownPair::UpDownPair(QWidget* parent)
    : QWidget(parent),
      up_(MakeButton(Qt::UpArrow, QStringLiteral("Up"))),
      down_(MakeButton(Qt::DownArrow, QStringLiteral("Down"))) {
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->setSpacing(0);
  column->addWidget(up_);
  column->addWidget(down_);
  setSizePolicy(QSizePolicy::Fixed, QSizePolicy::Fixed);
  connect(up_, &QToolButton::clicked, this, &UpDownPair::SteppedUp);
  connect(down_, &QToolButton::clicked, this, &UpDownPair::SteppedDown);
}

QToolButton* UpDownPair::MakeButton(Qt::ArrowType arrow, const QString& name) {
  auto* button = new QToolButton(this);
  button->setObjectName(name);
  button->setAccessibleName(
      QString::fromUtf8(OwnText(arrow == Qt::UpArrow ? Own::StepUp : Own::StepDown)));
  button->setArrowType(arrow);
  button->setAutoRepeat(true);
  button->setFocusPolicy(Qt::NoFocus);
  button->setFixedSize(22, 14);
  return button;
}

}  // namespace ui
