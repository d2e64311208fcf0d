#include "ui/vkr_grid_view.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QItemSelection>
#include <QKeyEvent>
#include <QScrollBar>

#include <algorithm>

#include "catalog/own_texts.h"
#include "ui/outcome_editor.h"
#include "ui/text.h"
#include "ui/vkr_grid_model.h"

namespace ui {
namespace {

constexpr QItemSelectionModel::SelectionFlags kThisRowAlone =
    QItemSelectionModel::ClearAndSelect | QItemSelectionModel::Rows;

int StepBehind(QAbstractItemDelegate::EndEditHint hint) {
  switch (hint) {
    case QAbstractItemDelegate::EditNextItem:
    case QAbstractItemDelegate::SubmitModelCache:
      return 1;
    case QAbstractItemDelegate::EditPreviousItem:
      return -1;
    default:
      return 0;
  }
}

}  // namespace

VkrGridView::VkrGridView(QWidget* parent) : QTableView(parent) {
  verticalHeader()->hide();
  FitRows();
  horizontalHeader()->setHighlightSections(false);
  setAlternatingRowColors(true);
  setTabKeyNavigation(false);
  setSelectionMode(QAbstractItemView::ExtendedSelection);
  setSelectionBehavior(QAbstractItemView::SelectRows);
  setEditTriggers(QAbstractItemView::AnyKeyPressed | QAbstractItemView::DoubleClicked |
                  QAbstractItemView::EditKeyPressed);
  setAccessibleName(Shown(OwnText(Own::Outcomes)));
  auto* outcomes = new OutcomeDelegate(this);
  connect(outcomes, &OutcomeDelegate::TablePasted, this, &VkrGridView::PasteText);
  setItemDelegate(outcomes);
}

void VkrGridView::Attach(screen::Grid& grid, EventGate& gate, QLabel* caption) {
  grid_ = &grid;
  gate_ = &gate;
  caption_ = caption;
  model_ = new VkrGridModel(grid, gate, this);
  setModel(model_);
}

// An open editor is called as its cell.
bool VkrGridView::viewportEvent(QEvent* event) {
  if (event->type() == QEvent::ChildPolished)
    if (auto* editor = qobject_cast<QWidget*>(static_cast<QChildEvent*>(event)->child()))
      editor->setAccessibleName(currentIndex().data(Qt::AccessibleTextRole).toString());
  return QTableView::viewportEvent(event);
}

void VkrGridView::SetCaption(const QString& caption) {
  if (!caption_) return;
  caption_->setText(caption);
  caption_->setToolTip(TipText(Typed(caption)));
  caption_->setAccessibleDescription(caption);
}

// Rows that go take the cursor and the selection with them: the rules know where both belong.
void VkrGridView::Refresh() {
  refreshing_ = true;
  model_->Refresh();
  SpreadColumns();
  if (currentIndex().row() != grid_->currentRow)
    GoTo(grid_->currentRow, QItemSelectionModel::NoUpdate);
  ShowSelection();
  refreshing_ = false;
  TellSelection();
}

// Not by the view's own way, which asks the keyboard whether Ctrl or Shift is held: a shortcut that
// ends here would add to the selection.
void VkrGridView::GoTo(int row, QItemSelectionModel::SelectionFlags selection) {
  const int last = model_->rowCount() - 1;
  if (last < 0) return;
  const QModelIndex cell = model_->index(std::clamp(row, 0, last), model_->EditableColumn());
  selectionModel()->setCurrentIndex(cell, selection);
  scrollTo(cell);
}

void VkrGridView::ShowSelection() {
  if (SelectedRows() == grid_->selectedRows) return;
  const std::vector<int>& rows = grid_->selectedRows;
  QItemSelection wanted;
  for (std::size_t first = 0, next = 0; first < rows.size(); first = next) {
    while (next < rows.size() && rows[next] - rows[first] == static_cast<int>(next - first)) ++next;
    wanted.append({model_->index(rows[first], 0), model_->index(rows[next - 1], 0)});
  }
  selectionModel()->select(wanted, kThisRowAlone);
}

std::vector<int> VkrGridView::SelectedRows() const {
  std::vector<int> rows;
  for (const QItemSelectionRange& range : selectionModel()->selection())
    for (int row = range.top(); row <= range.bottom(); ++row) rows.push_back(row);
  std::sort(rows.begin(), rows.end());
  rows.erase(std::unique(rows.begin(), rows.end()), rows.end());
  return rows;
}

void VkrGridView::TellSelection() {
  if (refreshing_ || !currentIndex().isValid()) return;
  grid_->currentRow = currentIndex().row();
  grid_->selectedRows = SelectedRows();
}

void VkrGridView::CommitEditor() {
  QWidget* focus = QApplication::focusWidget();
  if (state() == EditingState && focus && isAncestorOf(focus)) setFocus();
}

void VkrGridView::PasteClipboard() {
  PasteText(PlainText(QGuiApplication::clipboard()->mimeData()));
}

// Over what is selected, from its first row on, whichever end the cursor stands at: a copy comes
// back to where it was taken from. Where the cursor has gone on from the selection, it says where.
int VkrGridView::PasteRow() const {
  const int cursor = std::max(currentIndex().row(), 0);
  const std::vector<int> rows = SelectedRows();
  return std::ranges::binary_search(rows, cursor) ? rows.front() : cursor;
}

void VkrGridView::PasteText(const QString& text) {
  const int row = PasteRow();
  gate_->Later([this, row, typed = Typed(text)] { grid_->Paste(row, typed); });
}

void VkrGridView::CopySelection() {
  gate_->Run([this] {
    const std::string copied = grid_->Copy(SelectedRows());
    if (!copied.empty()) QGuiApplication::clipboard()->setText(Shown(copied));
  });
}

// With Ctrl the toolkit moves the cursor alone: Delete would take a row that it has left, and
// Ctrl+Shift+End would select none.
QItemSelectionModel::SelectionFlags VkrGridView::selectionCommand(const QModelIndex& index,
                                                                  const QEvent* event) const {
  if (event && event->type() == QEvent::KeyPress) {
    const auto& press = static_cast<const QKeyEvent&>(*event);
    const bool moves = press.key() >= Qt::Key_Home && press.key() <= Qt::Key_PageDown;
    const bool extends = press.modifiers() & Qt::ShiftModifier;
    if (moves && (press.modifiers() & Qt::ControlModifier))
      return extends ? QItemSelectionModel::SelectCurrent | QItemSelectionModel::Rows
                     : kThisRowAlone;
  }
  return QTableView::selectionCommand(index, event);
}

void VkrGridView::currentChanged(const QModelIndex& current, const QModelIndex& previous) {
  QTableView::currentChanged(current, previous);
  TellSelection();
}

void VkrGridView::selectionChanged(const QItemSelection& selected,
                                   const QItemSelection& deselected) {
  QTableView::selectionChanged(selected, deselected);
  TellSelection();
}

// Only the keys that end an entry lead on from it: a click has gone where it wanted to. The row
// behind the one just typed need not be there yet: an outcome in the empty row makes it.
void VkrGridView::closeEditor(QWidget* editor, QAbstractItemDelegate::EndEditHint hint) {
  QTableView::closeEditor(editor, QAbstractItemDelegate::NoHint);
  const int step = StepBehind(hint);
  if (step == 0 || QApplication::focusWidget() != this) return;
  const int row = currentIndex().row() + step;
  if (row < 0) return;
  GoTo(row, kThisRowAlone);
  grid_->currentRow = row;
  grid_->selectedRows = {row};
}

bool VkrGridView::TakesKey(const QKeyEvent& event) {
  // What an open editor has no use for comes by here as well.
  if (state() == EditingState) return false;
  const int row = currentIndex().row();
  if (event.matches(QKeySequence::Copy)) {
    CopySelection();
  } else if (event.matches(QKeySequence::Paste)) {
    PasteClipboard();
  } else if (event.key() == Qt::Key_Delete && row >= 0) {
    gate_->Later([this] { grid_->DeleteRows(grid_->selectedRows); });
  } else if (state() != EditingState && row >= 0 &&
             (event.key() == Qt::Key_Return || event.key() == Qt::Key_Enter)) {
    edit(model_->index(row, model_->EditableColumn()));
  } else {
    return false;
  }
  return true;
}

// Typing anywhere in a row edits its outcome.
void VkrGridView::keyPressEvent(QKeyEvent* event) {
  if (TakesKey(*event)) return;
  const bool typing = !event->text().isEmpty() && event->text()[0].isPrint();
  const QModelIndex current = currentIndex();
  if (typing && current.isValid() && current.column() != model_->EditableColumn())
    GoTo(current.row(), kThisRowAlone);
  QTableView::keyPressEvent(event);
}

void VkrGridView::resizeEvent(QResizeEvent* event) {
  QTableView::resizeEvent(event);
  SpreadColumns();
}

void VkrGridView::changeEvent(QEvent* event) {
  QTableView::changeEvent(event);
  if (event->type() != QEvent::FontChange) return;
  FitRows();
  SpreadColumns();
}

void VkrGridView::FitRows() {
  verticalHeader()->setMinimumSectionSize(0);
  verticalHeader()->setDefaultSectionSize(fontMetrics().height() + 8);
}

int VkrGridView::LeastWidth(int column) const {
  return std::max(horizontalHeader()->sectionSizeHint(column), sizeHintForColumn(column));
}

QSize VkrGridView::minimumSizeHint() const {
  constexpr int kFewestRows = 6;
  const int row = verticalHeader()->defaultSectionSize();
  int width = 2 * frameWidth() + verticalScrollBar()->sizeHint().width();
  for (int i = 0; model_ && i < model_->columnCount(); ++i) width += LeastWidth(i);
  return {width, horizontalHeader()->sizeHint().height() + kFewestRows * row};
}

// The columns share the width as their widths in twips are to each other, but none is narrower
// than its caption and its cells; the outcomes take what is left.
void VkrGridView::SpreadColumns() {
  if (!grid_ || model_->columnCount() == 0) return;
  int twips = 0;
  for (const screen::Grid::Column& column : grid_->columns) twips += column.widthTwips;
  int left = viewport()->width();
  for (int i = 0; i < model_->columnCount() && twips > 0; ++i) {
    const int share =
        viewport()->width() * grid_->columns[static_cast<std::size_t>(i)].widthTwips / twips;
    const int width = std::max(share, LeastWidth(i));
    if (i != model_->EditableColumn()) left -= width;
    setColumnWidth(i, width);
  }
  setColumnWidth(model_->EditableColumn(), std::max(left, LeastWidth(model_->EditableColumn())));
  updateGeometry();
}

}  // namespace ui
