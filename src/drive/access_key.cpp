#include "drive/access_key.h"

#include <QGuiApplication>
#include <QProcess>
#include <QWindow>
#include <QtTest/QTest>

#include "drive/failure.h"

namespace drive {
namespace {

// The X server's events come a while behind the call that asked for them.
class Released : public QObject {
 public:
  explicit Released(Qt::Key key) : key_(key) { qApp->installEventFilter(this); }
  bool Seen() const { return seen_; }

 protected:
  bool eventFilter(QObject*, QEvent* event) override {
    if (event->type() == QEvent::KeyRelease && static_cast<QKeyEvent*>(event)->key() == key_)
      seen_ = true;
    return false;
  }

 private:
  Qt::Key key_;
  bool seen_ = false;
};

void PressOnServer(const std::string& key, Qt::Key released) {
  constexpr int kPatience = 5000;
  const Released watch(released);
  const QString keys = QString::fromStdString("alt+" + key);
  if (QProcess::execute("xdotool", {"key", keys}) != 0)
    throw Failure("xdotool can't press " + keys.toStdString());
  if (!QTest::qWaitFor([&watch] { return watch.Seen(); }, kPatience))
    throw Failure("the window does not get " + keys.toStdString());
}

}  // namespace

void PressAccessKey(Stage& stage, const std::string& key) {
  const QKeySequence sequence = QKeySequence::fromString(QString::fromStdString(key));
  if (key.size() != 1 || sequence.isEmpty()) throw Failure("no access key " + key);
  const Qt::Key pressed = sequence[0].key();
  if (QGuiApplication::platformName() == "xcb")
    PressOnServer(QString::fromStdString(key).toLower().toStdString(), pressed);
  else
    QTest::keyClick(stage.Window().windowHandle(), pressed, Qt::AltModifier);
  stage.Settle();
}

}  // namespace drive
