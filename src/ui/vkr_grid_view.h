#pragma once

#include <QItemSelectionModel>
#include <QLabel>
#include <QTableView>

#include <vector>

#include "screen/control.h"
#include "ui/event_gate.h"

namespace ui {

class VkrGridModel;

// The editable table of outcomes. Enter and Tab take a typed outcome and go on to the next row;
// Delete deletes the selected rows; columns of numbers are copied and pasted.
class VkrGridView : public QTableView {
  Q_OBJECT

 public:
  explicit VkrGridView(QWidget* parent = nullptr);

  // `caption`: the label that shows the table's caption, if there is one.
  void Attach(screen::Grid& grid, EventGate& gate, QLabel* caption);
  void SetCaption(const QString& caption);
  // Shows the cells anew, and the cursor and the selection where the screen's rules have put them.
  void Refresh();
  // Takes what stands in an open editor.
  void CommitEditor();
  // Wide enough for the captions and the widest cells in sight.
  QSize minimumSizeHint() const override;
  void PasteClipboard();

 protected:
  bool viewportEvent(QEvent* event) override;
  void selectionChanged(const QItemSelection& selected, const QItemSelection& deselected) override;
  void currentChanged(const QModelIndex& current, const QModelIndex& previous) override;
  void closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) override;
  void keyPressEvent(QKeyEvent* event) override;
  void changeEvent(QEvent* event) override;
  void resizeEvent(QResizeEvent* event) override;
  QItemSelectionModel::SelectionFlags selectionCommand(const QModelIndex& index,
                                                       const QEvent* event) const override;

 private:
  void GoTo(int row, QItemSelectionModel::SelectionFlags selection);
  void ShowSelection();
  std::vector<int> SelectedRows() const;
  void TellSelection();
  void CopySelection();
  int PasteRow() const;
  void PasteText(const QString& text);
  void FitRows();
  void SpreadColumns();
  int LeastWidth(int column) const;
  bool TakesKey(const QKeyEvent& event);

  screen::Grid* grid_ = nullptr;
  EventGate* gate_ = nullptr;
  VkrGridModel* model_ = nullptr;
  QLabel* caption_ = nullptr;
  bool refreshing_ = false;  // what moves now, moves as the rules have said
};

}  // namespace ui
