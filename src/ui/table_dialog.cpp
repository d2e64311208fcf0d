#include "ui/table_dialog.h"

#include <QApplication>
#include <QButtonGroup>
#include <QDialog>
#include <QDialogButtonBox>
#include <QHeaderView>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QVBoxLayout>

#include <algorithm>

#include "ui/text.h"

namespace ui {
namespace {

using Question = screen::TableDialog::Question;

constexpr qsizetype kLongestCell = 40;
constexpr int kWidest = 640;  // pixels; a wider table scrolls

// A cell of several lines in one, cut where it is long.
QString CellShown(const std::string& cell) {
  const QString text = Lines(cell).simplified();
  return text.size() > kLongestCell ? text.left(kLongestCell) + QChar(0x2026) : text;
}

class Dialog : public QDialog {
 public:
  explicit Dialog(const Question& question)
      : QDialog(QApplication::activeWindow()), question_(question) {
    setWindowTitle(Lines(question.title).simplified());
    auto* text = new QLabel(Lines(question.text));
    text->setTextFormat(Qt::PlainText);
    text->setWordWrap(true);
    text->setObjectName(QStringLiteral("Question"));
    auto* layout = new QVBoxLayout(this);
    layout->addWidget(text);
    layout->addWidget(MakeTable());
    AddChoices(*layout);
    layout->addWidget(MakeButtons());
    if (QAbstractButton* first = choices_.button(static_cast<int>(question.proposed.value_or(0))))
      first->setFocus();
  }

  std::optional<std::size_t> Choice() const {
    if (choices_.checkedId() < 0) return std::nullopt;
    return static_cast<std::size_t>(choices_.checkedId());
  }

 private:
  int Columns() const {
    std::size_t columns = 0;
    for (const auto& line : question_.lines) columns = std::max(columns, line.size());
    return static_cast<int>(columns);
  }

  // A click in a column chooses it; by the keyboard the buttons below do.
  QTableWidget* MakeTable() {
    table_ = new QTableWidget(static_cast<int>(question_.lines.size()), Columns());
    table_->setObjectName(QStringLiteral("FirstLines"));
    table_->setAccessibleName(Lines(question_.text));
    table_->setEditTriggers(QAbstractItemView::NoEditTriggers);
    table_->setSelectionMode(QAbstractItemView::NoSelection);
    table_->setFocusPolicy(Qt::NoFocus);
    for (int row = 0; row < table_->rowCount(); ++row) {
      const auto& line = question_.lines[static_cast<std::size_t>(row)];
      for (std::size_t column = 0; column < line.size(); ++column)
        table_->setItem(row, static_cast<int>(column),
                        new QTableWidgetItem(CellShown(line[column])));
    }
    table_->resizeColumnsToContents();
    table_->setMinimumWidth(std::min(kWidest, WidthOfColumns()));
    connect(table_, &QTableWidget::cellClicked, this, [this](int, int column) { Take(column); });
    connect(table_->horizontalHeader(), &QHeaderView::sectionClicked, this,
            [this](int column) { Take(column); });
    return table_;
  }

  int WidthOfColumns() const {
    table_->verticalHeader()->ensurePolished();
    return table_->horizontalHeader()->length() + table_->verticalHeader()->sizeHint().width() +
           2 * table_->frameWidth();
  }

  void Take(int column) {
    const auto& columns = question_.columns;
    const auto found = std::find(columns.begin(), columns.end(), static_cast<std::size_t>(column));
    if (found == columns.end()) return;
    choices_.button(static_cast<int>(found - columns.begin()))->click();
  }

  void AddChoices(QVBoxLayout& layout) {
    for (std::size_t i = 0; i < question_.choices.size(); ++i) {
      // No character of a pasted text is the mark of an access key.
      QString caption = Lines(question_.choices[i]).simplified();
      caption.replace(QLatin1Char('&'), QLatin1String("&&"));
      auto* button = new QRadioButton(caption);
      button->setChecked(question_.proposed == i);
      choices_.addButton(button, static_cast<int>(i));
      layout.addWidget(button);
    }
  }

  // Nothing is taken that nobody has chosen.
  QDialogButtonBox* MakeButtons() {
    auto* buttons = new QDialogButtonBox(QDialogButtonBox::Ok | QDialogButtonBox::Cancel);
    QPushButton* ok = buttons->button(QDialogButtonBox::Ok);
    ok->setEnabled(Choice().has_value());
    connect(&choices_, &QButtonGroup::idToggled, ok, [ok] { ok->setEnabled(true); });
    connect(buttons, &QDialogButtonBox::accepted, this, &QDialog::accept);
    connect(buttons, &QDialogButtonBox::rejected, this, &QDialog::reject);
    return buttons;
  }

  const Question& question_;
  QButtonGroup choices_;
  QTableWidget* table_ = nullptr;
};

}  // namespace

std::optional<std::size_t> TableDialog::Ask(const Question& question) {
  Dialog dialog(question);
  if (dialog.exec() != QDialog::Accepted) return std::nullopt;
  return dialog.Choice();
}

}  // namespace ui
