// offer_clipboard [--text FILE] [--html FILE]: another program that has copied something. It offers
// the files' contents on the clipboard, says "offered" on standard output, and stays until its
// standard input ends.

#include <QClipboard>
#include <QFile>
#include <QGuiApplication>
#include <QMimeData>
#include <QSocketNotifier>
#include <QWindow>

#include <unistd.h>

#include <iostream>

namespace {

QByteArray Content(const QString& path) {
  QFile file(path);
  if (!file.open(QIODevice::ReadOnly)) qFatal("can't read %s", qUtf8Printable(path));
  return file.readAll();
}

QMimeData* Offered(const QStringList& arguments) {
  auto* offered = new QMimeData;  // the clipboard's own from here on
  for (qsizetype i = 1; i + 1 < arguments.size(); i += 2) {
    const QString text = QString::fromUtf8(Content(arguments[i + 1]));
    if (arguments[i] == QStringLiteral("--text")) offered->setText(text);
    if (arguments[i] == QStringLiteral("--html")) offered->setHtml(text);
  }
  return offered;
}

}  // namespace

int main(int argc, char** argv) {
  QGuiApplication toolkit(argc, argv);
  QWindow window;  // who copies has a window
  window.show();
  QGuiApplication::clipboard()->setMimeData(Offered(QGuiApplication::arguments()));
  QGuiApplication::processEvents();
  std::cout << "offered" << std::endl;
  QSocketNotifier input(STDIN_FILENO, QSocketNotifier::Read);
  QObject::connect(&input, &QSocketNotifier::activated, &toolkit, [&toolkit] {
    char byte = 0;
    if (read(STDIN_FILENO, &byte, 1) <= 0) toolkit.quit();
  });
  return QGuiApplication::exec();
}
