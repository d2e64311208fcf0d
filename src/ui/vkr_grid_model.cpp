#include "ui/vkr_grid_model.h"

#include <exception>

#include "catalog/own_texts.h"
#include "ui/text.h"

namespace ui {

VkrGridModel::VkrGridModel(screen::Grid& grid, EventGate& gate, QObject* parent)
    : QAbstractTableModel(parent), grid_(grid), gate_(gate) {}

int VkrGridModel::rowCount(const QModelIndex& parent) const {
  return parent.isValid() || columns_ == 0 ? 0 : rows_ + 1;
}

int VkrGridModel::columnCount(const QModelIndex& parent) const {
  return parent.isValid() ? 0 : columns_;
}

int VkrGridModel::EditableColumn() const {
  for (int column = 0; column < columns_; ++column)
    if (grid_.columns[static_cast<std::size_t>(column)].editable) return column;
  return 0;
}

// A cell that can't be computed stays empty: painting has nobody to tell a fault to.
QString VkrGridModel::CellText(int row, int column) const {
  if (row >= grid_.rowCount || !grid_.Cell) return {};
  try {
    return Shown(grid_.Cell(row, column)).trimmed();
  } catch (const std::exception&) {
    return {};
  }
}

// Numbers end in line, the operators stand in the middle, the unit begins beside its number.
Qt::Alignment VkrGridModel::AlignmentOf(int column) const {
  const int outcome = EditableColumn();
  if (column == outcome - 1) return Qt::AlignHCenter;
  return column > outcome ? Qt::AlignLeft : Qt::AlignRight;
}

QVariant VkrGridModel::data(const QModelIndex& index, int role) const {
  if (!index.isValid()) return {};
  if (role == Qt::TextAlignmentRole) {
    return QVariant(Qt::AlignVCenter | AlignmentOf(index.column()));
  }
  if (role == Qt::AccessibleTextRole) return SpokenCell(index.row(), index.column());
  if (role != Qt::DisplayRole && role != Qt::EditRole) return {};
  if (role == Qt::DisplayRole && IsNewRow(index.row()))
    return index.column() == 0 ? QStringLiteral("*") : QString();
  return CellText(index.row(), index.column());
}

// An outcome with its unit and its row: "0.591 mg/m3, row 3".
QString VkrGridModel::SpokenCell(int row, int column) const {
  if (IsNewRow(row)) return QString::fromUtf8(OwnText(Own::CellNew));
  QString text = CellText(row, column);
  if (text.isEmpty()) text = QString::fromUtf8(OwnText(Own::CellEmpty));
  if (column != EditableColumn()) return text;
  for (int unit = column + 1; unit < columns_; ++unit)
    text = (text + QLatin1Char(' ') + CellText(row, unit)).trimmed();
  return Shown(OwnText(Own::CellSpoken, {Typed(text), Typed(QString::number(row + 1))}));
}

QVariant VkrGridModel::headerData(int section, Qt::Orientation orientation, int role) const {
  if (orientation != Qt::Horizontal || role != Qt::DisplayRole || section >= columns_) return {};
  return Shown(grid_.columns[static_cast<std::size_t>(section)].caption);
}

Qt::ItemFlags VkrGridModel::flags(const QModelIndex& index) const {
  const Qt::ItemFlags flags = QAbstractTableModel::flags(index);
  return index.isValid() && index.column() == EditableColumn() ? flags | Qt::ItemIsEditable : flags;
}

bool VkrGridModel::setData(const QModelIndex& index, const QVariant& value, int role) {
  if (!index.isValid() || role != Qt::EditRole) return false;
  const QString text = value.toString();
  // An editor that was opened and closed again: the cell's text is rounded, its value is not.
  if (text == CellText(index.row(), index.column())) return false;
  gate_.Later([this, row = index.row(), column = index.column(), typed = Typed(text)] {
    Write(row, column, typed);
  });
  return true;
}

void VkrGridModel::Write(int row, int column, const std::string& text) {
  if (row >= grid_.rowCount)
    grid_.AddRow(text);
  else
    grid_.Write(row, column, text);
}

void VkrGridModel::Refresh() {
  const int columns = static_cast<int>(grid_.columns.size());
  if (columns != columns_) {
    beginResetModel();
    columns_ = columns;
    rows_ = grid_.rowCount;
    endResetModel();
    return;
  }
  if (grid_.rowCount > rows_) {
    beginInsertRows({}, rows_, grid_.rowCount - 1);
    rows_ = grid_.rowCount;
    endInsertRows();
  } else if (grid_.rowCount < rows_) {
    beginRemoveRows({}, grid_.rowCount, rows_ - 1);
    rows_ = grid_.rowCount;
    endRemoveRows();
  }
  if (columns_ > 0) emit dataChanged(index(0, 0), index(rows_, columns_ - 1));
}

}  // namespace ui
