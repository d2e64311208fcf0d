#include "ui/file_dialog.h"

#include <QApplication>
#include <QFileDialog>
#include <QFileInfo>

#include "ui/text.h"

namespace ui {
namespace {

// "Text|*.vkr|Text|*.*" in the words of the toolkit: "Text (*.vkr)", one entry a pair.
QStringList Filters(const QString& filter) {
  const QStringList parts = filter.split(QLatin1Char('|'));
  QStringList filters;
  for (qsizetype i = 0; i + 1 < parts.size(); i += 2) {
    QString text = parts[i];
    if (const qsizetype brace = text.indexOf(QLatin1Char('(')); brace >= 0) text.truncate(brace);
    QString patterns = parts[i + 1];
    patterns.replace(QLatin1Char(';'), QLatin1Char(' '));
    filters += text.trimmed() + QLatin1String(" (") + patterns + QLatin1Char(')');
  }
  return filters;
}

// What a name typed without one gets: "bmp" of "Text|*.bmp".
QString Suffix(const QString& filter) {
  return filter.section(QLatin1Char('|'), 1, 1).section(QLatin1Char('.'), -1);
}

// The kind of file that is chosen gives the name its ending.
void FollowKind(QFileDialog& dialog, const QString& kind) {
  const QString suffix = kind.section(QLatin1Char('.'), -1).chopped(1);
  dialog.setDefaultSuffix(suffix);
  const QFileInfo file(dialog.selectedFiles().value(0));
  if (!file.fileName().isEmpty() && !file.isDir())
    dialog.selectFile(file.completeBaseName() + QLatin1Char('.') + suffix);
}

}  // namespace

std::string FileDialog::Ask(const Request& request) {
  QFileDialog dialog(QApplication::activeWindow(), Shown(request.title).simplified());
  dialog.setAcceptMode(request.save ? QFileDialog::AcceptSave : QFileDialog::AcceptOpen);
  dialog.setFileMode(request.save ? QFileDialog::AnyFile : QFileDialog::ExistingFile);
  dialog.setNameFilters(Filters(Shown(request.filter)));
  dialog.setDefaultSuffix(Suffix(Shown(request.filter)));
  if (request.save && dialog.nameFilters().size() > 1)
    QObject::connect(&dialog, &QFileDialog::filterSelected, &dialog,
                     [&dialog](const QString& kind) { FollowKind(dialog, kind); });
  if (const QFileInfo file(Shown(request.fileName)); !request.fileName.empty()) {
    if (file.isAbsolute()) dialog.setDirectory(file.absolutePath());
    dialog.selectFile(file.fileName());
  }
  if (dialog.exec() != QDialog::Accepted || dialog.selectedFiles().isEmpty()) return {};
  return Typed(dialog.selectedFiles().constFirst());
}

}  // namespace ui
