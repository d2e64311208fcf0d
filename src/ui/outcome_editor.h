#pragma once

#include <QLineEdit>
#include <QStyledItemDelegate>

class QMimeData;

namespace ui {

// The plain text of what was copied; null when it has none.
QString PlainText(const QMimeData* copied);

// The editor of one outcome. It holds a single line: several lines or cells that are pasted into it
// by whatever road are no part of an outcome, and go on to the table.
class OutcomeEditor : public QLineEdit {
  Q_OBJECT

 public:
  explicit OutcomeEditor(QWidget* parent);

 signals:
  void TablePasted(const QString& text);

 protected:
  void keyPressEvent(QKeyEvent* event) override;
  void contextMenuEvent(QContextMenuEvent* event) override;
  void mouseReleaseEvent(QMouseEvent* event) override;
  void dropEvent(QDropEvent* event) override;

 private:
  // True when the text was one for the table.
  bool HandOver(const QString& text);
  void PasteClipboard();
};

class OutcomeDelegate : public QStyledItemDelegate {
  Q_OBJECT

 public:
  using QStyledItemDelegate::QStyledItemDelegate;
  QWidget* createEditor(QWidget* parent, const QStyleOptionViewItem& option,
                        const QModelIndex& index) const override;

 signals:
  // The editor is closed, and what was typed in it is dropped.
  void TablePasted(const QString& text);
};

}  // namespace ui
