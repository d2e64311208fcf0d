#pragma once

#include <QAbstractTableModel>

#include "screen/control.h"
#include "ui/event_gate.h"

namespace ui {

// The rows of a screen's table, each cell asked for when it is shown, and one empty row behind
// them for a new outcome.
class VkrGridModel : public QAbstractTableModel {
  Q_OBJECT

 public:
  VkrGridModel(screen::Grid& grid, EventGate& gate, QObject* parent);

  int rowCount(const QModelIndex& parent = {}) const override;
  int columnCount(const QModelIndex& parent = {}) const override;
  QVariant data(const QModelIndex& index, int role = Qt::DisplayRole) const override;
  QVariant headerData(int section, Qt::Orientation orientation, int role) const override;
  Qt::ItemFlags flags(const QModelIndex& index) const override;
  // Takes the text to the screen's rules once the editor is closed. Whatever they refuse, the
  // cell shows what the rules hold.
  bool setData(const QModelIndex& index, const QVariant& value, int role) override;

  // Rows or cells may have changed.
  void Refresh();
  bool IsNewRow(int row) const { return row == rows_; }
  int EditableColumn() const;

 private:
  QString CellText(int row, int column) const;
  QString SpokenCell(int row, int column) const;
  Qt::Alignment AlignmentOf(int column) const;
  void Write(int row, int column, const std::string& text);

  screen::Grid& grid_;
  EventGate& gate_;
  int rows_ = 0;
  int columns_ = 0;
};

}  // namespace ui
