#include "ui/reading_view.h"

#include <QCloseEvent>
#include <QFile>
#include <QLineEdit>
#include <QScreen>
#include <QShortcut>
#include <QVBoxLayout>

#include "ui/text.h"

namespace ui {
namespace {

// Room for 105 columns and some more, by some thirty lines.
constexpr QSize kSize(960, 560);

}  // namespace

ReadingView::ReadingView(QWidget& owner, screen::ReadingWindow& form, QWidget& content,
                         EventGate& gate)
    : QWidget(&owner, Qt::Window), form_(form), gate_(gate) {
  constexpr int kPauseMs = 150;
  setObjectName(Shown(form.name));
  auto* column = new QVBoxLayout(this);
  column->setContentsMargins(0, 0, 0, 0);
  column->addWidget(&content);
  resize(kSize.boundedTo(screen()->availableSize()));
  AddKeys(content);
  pause_.setSingleShot(true);
  pause_.setInterval(kPauseMs);
  connect(&watcher_, &QFileSystemWatcher::fileChanged, &pause_, qOverload<>(&QTimer::start));
  connect(&pause_, &QTimer::timeout, this, [this] { gate_.Run(form_.FileGrown); });
}

void ReadingView::AddKeys(QWidget& content) {
  auto* field = content.findChild<QLineEdit*>(DesignName(form_.search->name));
  const auto add = [this](const QKeySequence& keys, auto action) {
    connect(new QShortcut(keys, this), &QShortcut::activated, this, action);
  };
  add(QKeySequence(Qt::Key_Escape), [this] { close(); });
  add(QKeySequence(Qt::CTRL | Qt::Key_F), [field] {
    field->setFocus(Qt::ShortcutFocusReason);
    field->selectAll();
  });
  for (const auto& [keys, button] :
       {std::pair(QKeySequence(Qt::Key_F3), form_.next),
        std::pair(QKeySequence(Qt::SHIFT | Qt::Key_F3), form_.previous)})
    add(keys, [this, pressed = button] { gate_.Run(pressed->Click); });
}

void ReadingView::Push() {
  Watch();
  setWindowTitle(Shown(form_.caption));
  if (form_.shown == isVisible()) return;
  setVisible(form_.shown);
  if (form_.shown)
    activateWindow();
  else
    parentWidget()->activateWindow();
}

// A file that was put in the place of another one has to be watched anew.
void ReadingView::Watch() {
  const QString file = QFile::decodeName(QByteArray::fromStdString(form_.file));
  const QStringList watched = watcher_.files();
  if (file.isEmpty() ? watched.isEmpty() : watched == QStringList{file}) return;
  if (!watched.isEmpty()) watcher_.removePaths(watched);
  if (!file.isEmpty() && QFile::exists(file)) watcher_.addPath(file);
}

// Also at the end of the program, which it must not hold up.
void ReadingView::closeEvent(QCloseEvent* event) {
  gate_.Run(form_.Closed);
  event->accept();
}

}  // namespace ui
