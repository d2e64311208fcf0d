#include "drive/grid_hands.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QMimeData>
#include <QTableView>
#include <QtTest/QTest>

#include <algorithm>
#include <vector>

#include "drive/failure.h"
#include "drive/hands.h"
#include "drive/look.h"
#include "drive/text.h"

namespace drive {
namespace {

constexpr int kConcentration = 2;

Target GridOf(Stage& stage) {
  for (screen::Control* control : stage.Shown().controls)
    if (control->kind == screen::Kind::Grid) return {&stage.Shown(), control};
  throw Failure(stage.Shown().name + " has no table");
}

QTableView& ViewOf(Stage& stage, const Target& grid) {
  QWidget& widget = stage.WidgetOf(grid);
  auto* view = qobject_cast<QTableView*>(&widget);
  if (!view) view = widget.findChild<QTableView*>();
  if (!view) throw Failure(grid.control->name + " shows no table");
  return *view;
}

const screen::Grid& Rules(const Target& grid) {
  return static_cast<const screen::Grid&>(*grid.control);
}

// The place of the row's cell, scrolled into sight.
QPoint PlaceOf(Stage& stage, QTableView& view, int row) {
  if (row < 1 || row > view.model()->rowCount()) throw Failure("no row " + IntText(row));
  const QModelIndex cell = view.model()->index(row - 1, kConcentration);
  view.scrollTo(cell);
  stage.Settle();
  return view.visualRect(cell).center();
}

QTableView& GoToCell(Stage& stage, int row) {
  const Target grid = GridOf(stage);
  NeedUsable(stage, grid);
  QTableView& view = ViewOf(stage, grid);
  const QPoint place = PlaceOf(stage, view, row);
  const QModelIndex cell = view.indexAt(place);
  ClickAt(stage, *view.viewport(), place.x(), place.y(), "row " + IntText(row));
  if (view.currentIndex() != cell) throw Failure("row " + IntText(row) + " can't be reached");
  return view;
}

// "3 to 5, 8", counted from 1.
std::string RowList(const std::vector<int>& rows) {
  std::string list;
  for (std::size_t first = 0, next = 0; first < rows.size(); first = next) {
    while (next < rows.size() && rows[next] - rows[first] == static_cast<int>(next - first)) ++next;
    list += (list.empty() ? "" : ", ") + IntText(rows[first] + 1);
    if (next - first > 1) list += " to " + IntText(rows[next - 1] + 1);
  }
  return list;
}

void NeedSame(const std::string& what, const std::string& shown, const std::string& held) {
  if (shown != held)
    throw Failure("the table shows the " + what + " " + shown + ", its state is " + held);
}

QLineEdit& EditorOf(Stage& stage, int row) {
  QTableView& view = GoToCell(stage, row);
  if (!view.viewport()->findChild<QLineEdit*>()) QTest::keyClick(&view, Qt::Key_F2);
  stage.Settle();
  auto* editor = view.viewport()->findChild<QLineEdit*>();
  if (!editor) throw Failure("the cell in row " + IntText(row) + " can't be edited");
  return *editor;
}

}  // namespace

void TypeIntoCell(Stage& stage, int row, const std::string& text) {
  QLineEdit* editor = &EditorOf(stage, row);
  QTest::keyClick(editor, Qt::Key_A, Qt::ControlModifier);
  QTest::keyClick(editor, Qt::Key_Delete);
  TypeKeys(*editor, text);
  QTest::keyClick(editor, Qt::Key_Return);
  stage.Settle();
}

void AddRow(Stage& stage, const std::string& text) {
  TypeIntoCell(stage, Rules(GridOf(stage)).rowCount + 1, text);
}

void DeleteRow(Stage& stage, int row) {
  if (row > Rules(GridOf(stage)).rowCount) throw Failure("no row " + IntText(row));
  GoToCell(stage, row);
  ChooseMenu(stage, stage.Find("MenuDeleteRow"));
}

void GoToRow(Stage& stage, int row) { GoToCell(stage, row); }

void SelectRows(Stage& stage, int first, int last) {
  QTableView& view = GoToCell(stage, first);
  const QPoint place = PlaceOf(stage, view, last);
  QTest::mouseClick(view.viewport(), Qt::LeftButton, Qt::ShiftModifier, place);
  stage.Settle();
}

std::string CursorRow(Stage& stage) {
  const Target grid = GridOf(stage);
  const std::string shown = IntText(ViewOf(stage, grid).currentIndex().row() + 1);
  NeedSame("cursor", shown, IntText(Rules(grid).currentRow + 1));
  return shown;
}

std::string SelectedRows(Stage& stage) {
  const Target grid = GridOf(stage);
  std::vector<int> rows;
  const QTableView& view = ViewOf(stage, grid);
  for (const QModelIndex& cell : view.selectionModel()->selectedRows()) rows.push_back(cell.row());
  std::sort(rows.begin(), rows.end());
  NeedSame("selection", RowList(rows), RowList(Rules(grid).selectedRows));
  return RowList(rows);
}

void OpenEditor(Stage& stage, int row) { EditorOf(stage, row); }

void OfferText(const std::string& text) {
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
}

void OfferHtml(const std::string& html, const std::string* text) {
  auto* offered = new QMimeData;  // the clipboard's own from here on
  offered->setHtml(QString::fromStdString(html));
  if (text) offered->setText(QString::fromStdString(*text));
  QGuiApplication::clipboard()->setMimeData(offered);
}

void PasteRows(Stage& stage) {
  const Target grid = GridOf(stage);
  NeedUsable(stage, grid);
  QTableView& view = ViewOf(stage, grid);
  view.setFocus(Qt::TabFocusReason);
  stage.Settle();
  QTest::keyClick(&view, Qt::Key_V, Qt::ControlModifier);
  stage.Settle();
}

std::string CellText(Stage& stage, const Target& grid, int row, int column) {
  if (grid.control->kind != screen::Kind::Grid) throw Failure(grid.control->name + " is no table");
  const screen::Grid& rules = Rules(grid);
  if (row < 1 || row > rules.rowCount || column < 0 ||
      column >= static_cast<int>(rules.columns.size()))
    throw Failure(grid.control->name + " has no such cell");
  const QAbstractItemModel& model = *ViewOf(stage, grid).model();
  std::string shown = model.data(model.index(row - 1, column)).toString().toStdString();
  const std::string state = rules.Cell(row - 1, column);
  if (TrimBlanks(shown) != TrimBlanks(state))
    throw Failure("the table shows " + Quoted(shown) + ", the cell holds " + Quoted(state));
  return shown;
}

}  // namespace drive
