#pragma once

#include <QLabel>

#include <optional>

namespace ui {

// The live line below a screen. A screen reader hears it when its words change and when its screen
// comes up; what must not be overlooked stands on a band of its own colour.
class LiveLabel : public QLabel {
  Q_OBJECT

 public:
  explicit LiveLabel(QWidget* parent = nullptr);

  void ShowBand(const std::optional<QColor>& band);

 protected:
  void showEvent(QShowEvent* event) override;
};

// Makes known to the toolkit that such a label is an alert. Once, before the first window.
void AnnounceLiveLabels();

}  // namespace ui
