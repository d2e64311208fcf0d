#include "ui/table_dialog.h"

#include <gtest/gtest.h>

#include <QAbstractButton>
#include <QApplication>
#include <QDialog>
#include <QDialogButtonBox>
#include <QLabel>
#include <QPushButton>
#include <QRadioButton>
#include <QTableWidget>
#include <QTimer>
#include <QtTest/QTest>

#include <functional>

#include "tests/window/toolkit.h"

// The real question about a pasted table, which scripts answer without showing it.
namespace {

const screen::TableDialog::Question kColumns{
    "Concentration",
    "Which column holds the outcomes?",
    {{"Nr", "Who & when", "Result\n(mg/m3)"}, {"1", "Anna", "0.591"}, {"2", "Bob", "0.84"}},
    {"Column 1: Nr", "Column 3: R&D result"},
    {0, 2},
    std::nullopt};

// What the dialog answers to what `act` does with it.
std::optional<std::size_t> AnswerTo(const screen::TableDialog::Question& question,
                                    const std::function<void(QDialog&)>& act) {
  QTimer::singleShot(0, [&] {
    auto* dialog = qobject_cast<QDialog*>(QApplication::activeModalWidget());
    ASSERT_NE(dialog, nullptr);
    act(*dialog);
    if (dialog->isVisible()) dialog->reject();
  });
  return ui::TableDialog().Ask(question);
}

QPushButton& Ok(const QDialog& dialog) {
  return *dialog.findChild<QDialogButtonBox*>()->button(QDialogButtonBox::Ok);
}

TEST(TableDialog, ShowsTheFirstLinesAndTheChoices) {
  AnswerTo(kColumns, [](QDialog& dialog) {
    EXPECT_EQ(dialog.windowTitle(), "Concentration");
    EXPECT_EQ(dialog.findChild<QLabel*>("Question")->text(), "Which column holds the outcomes?");
    const auto* table = dialog.findChild<QTableWidget*>();
    ASSERT_EQ(table->rowCount(), 3);
    ASSERT_EQ(table->columnCount(), 3);
    EXPECT_EQ(table->item(0, 2)->text(), "Result (mg/m3)");
    EXPECT_EQ(table->item(2, 2)->text(), "0.84");
    QStringList choices;
    for (const auto* button : dialog.findChildren<QRadioButton*>()) choices += button->text();
    EXPECT_EQ(choices, QStringList({"Column 1: Nr", "Column 3: R&&D result"}));
  });
}

TEST(TableDialog, TakesNothingThatNobodyHasChosen) {
  const auto answer = AnswerTo(kColumns, [](QDialog& dialog) {
    EXPECT_FALSE(Ok(dialog).isEnabled());
    QTest::keyClick(&dialog, Qt::Key_Return);
    EXPECT_TRUE(dialog.isVisible());
  });
  EXPECT_FALSE(answer.has_value());
}

TEST(TableDialog, IsAnsweredByTheKeyboard) {
  const auto answer = AnswerTo(kColumns, [](QDialog& dialog) {
    dialog.activateWindow();
    ASSERT_TRUE(QTest::qWaitForWindowActive(&dialog));
    EXPECT_EQ(dialog.focusWidget(), dialog.findChild<QRadioButton*>());
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Down);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Space);
    QTest::keyClick(dialog.focusWidget(), Qt::Key_Return);
    EXPECT_FALSE(dialog.isVisible());
  });
  EXPECT_EQ(answer, 1u);
}

TEST(TableDialog, IsAnsweredByAClickInTheColumn) {
  const auto answer = AnswerTo(kColumns, [](QDialog& dialog) {
    auto* table = dialog.findChild<QTableWidget*>();
    const auto click = [table](int column) {
      const QPoint place = table->visualItemRect(table->item(1, column)).center();
      QTest::mouseClick(table->viewport(), Qt::LeftButton, {}, place);
    };
    click(1);
    EXPECT_FALSE(Ok(dialog).isEnabled()) << "no choice stands for the names";
    click(2);
    Ok(dialog).click();
  });
  EXPECT_EQ(answer, 1u);
}

TEST(TableDialog, HasItsProposalChosenAndEscapeCancels) {
  screen::TableDialog::Question question = kColumns;
  question.proposed = 1;
  EXPECT_EQ(AnswerTo(question, [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Return); }),
            1u);
  EXPECT_EQ(AnswerTo(question, [](QDialog& dialog) { QTest::keyClick(&dialog, Qt::Key_Escape); }),
            std::nullopt);
}

}  // namespace
