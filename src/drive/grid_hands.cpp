#include "drive/grid_hands.h"

#include <QApplication>
#include <QClipboard>
#include <QHeaderView>
#include <QLineEdit>
#include <QTableView>
#include <QtTest/QTest>

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

QTableView& GoToCell(Stage& stage, int row) {
  const Target grid = GridOf(stage);
  NeedUsable(stage, grid);
  QTableView& view = ViewOf(stage, grid);
  if (row < 1 || row > view.model()->rowCount()) throw Failure("no row " + IntText(row));
  const QModelIndex cell = view.model()->index(row - 1, kConcentration);
  view.scrollTo(cell);
  stage.Settle();
  const QPoint place = view.visualRect(cell).center();
  ClickAt(stage, *view.viewport(), place.x(), place.y(), "row " + IntText(row));
  if (view.currentIndex() != cell) throw Failure("row " + IntText(row) + " can't be reached");
  return view;
}

}  // namespace

void TypeIntoCell(Stage& stage, int row, const std::string& text) {
  QTableView& view = GoToCell(stage, row);
  if (!view.viewport()->findChild<QLineEdit*>()) QTest::keyClick(&view, Qt::Key_F2);
  stage.Settle();
  auto* editor = view.viewport()->findChild<QLineEdit*>();
  if (!editor) throw Failure("the cell in row " + IntText(row) + " can't be edited");
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

void PasteRows(Stage& stage, const std::string& text) {
  const Target grid = GridOf(stage);
  NeedUsable(stage, grid);
  QTableView& view = ViewOf(stage, grid);
  QGuiApplication::clipboard()->setText(QString::fromStdString(text));
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
