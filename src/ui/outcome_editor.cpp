#include "ui/outcome_editor.h"

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QKeyEvent>
#include <QMenu>
#include <QMimeData>
#include <QStyle>
#include <QValidator>

#include <algorithm>

namespace ui {
namespace {

bool PartsCells(QChar c) {
  return c == QLatin1Char('\n') || c == QLatin1Char('\r') || c == QLatin1Char('\t') ||
         c == QChar::LineSeparator || c == QChar::ParagraphSeparator;
}

bool IsTable(const QString& text) { return std::any_of(text.begin(), text.end(), PartsCells); }

// No road into the field leads several lines there, also one that nobody thought of.
class OneLine : public QValidator {
 public:
  using QValidator::QValidator;
  State validate(QString& text, int&) const override {
    return IsTable(text) ? Invalid : Acceptable;
  }
};

// The item of the field's own menu that pastes, which has no name.
QAction* PasteItem(const QMenu& menu) {
  const QString keys = QKeySequence(QKeySequence::Paste).toString(QKeySequence::NativeText);
  for (QAction* item : menu.actions())
    if (item->text().endsWith(QLatin1Char('\t') + keys)) return item;
  return nullptr;
}

}  // namespace

QString PlainText(const QMimeData* copied) {
  return copied && copied->hasFormat(QStringLiteral("text/plain")) ? copied->text() : QString();
}

OutcomeEditor::OutcomeEditor(QWidget* parent) : QLineEdit(parent) {
  setFrame(style()->styleHint(QStyle::SH_ItemView_DrawDelegateFrame, nullptr, this) != 0);
  setValidator(new OneLine(this));
}

// A spreadsheet puts a line end behind a single cell, too.
bool OutcomeEditor::HandOver(const QString& text) {
  if (!IsTable(text)) return false;
  const QString cell = text.trimmed();
  if (IsTable(cell))
    emit TablePasted(text);
  else
    insert(cell);
  return true;
}

void OutcomeEditor::PasteClipboard() {
  if (!HandOver(PlainText(QGuiApplication::clipboard()->mimeData()))) paste();
}

void OutcomeEditor::keyPressEvent(QKeyEvent* event) {
  if (event->matches(QKeySequence::Paste))
    PasteClipboard();
  else
    QLineEdit::keyPressEvent(event);
}

void OutcomeEditor::contextMenuEvent(QContextMenuEvent* event) {
  QMenu* menu = createStandardContextMenu();
  menu->setAttribute(Qt::WA_DeleteOnClose);
  if (QAction* item = PasteItem(*menu)) {
    disconnect(item, &QAction::triggered, this, nullptr);
    connect(item, &QAction::triggered, this, &OutcomeEditor::PasteClipboard);
  }
  menu->popup(event->globalPos());
}

void OutcomeEditor::mouseReleaseEvent(QMouseEvent* event) {
  QClipboard& clipboard = *QGuiApplication::clipboard();
  const bool pastes = event->button() == Qt::MiddleButton && clipboard.supportsSelection();
  if (pastes && HandOver(PlainText(clipboard.mimeData(QClipboard::Selection)))) return;
  QLineEdit::mouseReleaseEvent(event);
}

void OutcomeEditor::dropEvent(QDropEvent* event) {
  if (HandOver(PlainText(event->mimeData())))
    event->acceptProposedAction();
  else
    QLineEdit::dropEvent(event);
}

QWidget* OutcomeDelegate::createEditor(QWidget* parent, const QStyleOptionViewItem&,
                                       const QModelIndex&) const {
  auto* editor = new OutcomeEditor(parent);
  auto* self = const_cast<OutcomeDelegate*>(this);  // NOLINT: signals of a const factory
  connect(editor, &OutcomeEditor::TablePasted, self, [self, editor](const QString& text) {
    emit self->closeEditor(editor, RevertModelCache);
    emit self->TablePasted(text);
  });
  return editor;
}

}  // namespace ui
