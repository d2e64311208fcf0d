#include "ui/outcome_editor.h"

#include <gtest/gtest.h>

#include <QAction>
#include <QApplication>
#include <QClipboard>
#include <QContextMenuEvent>
#include <QDropEvent>
#include <QMenu>
#include <QMimeData>
#include <QtTest/QTest>

#include <memory>

#include "tests/window/toolkit.h"

// Every road by which a text gets into an open cell: one line goes in, a table goes on to the grid.
namespace {

struct Editor {
  Editor() {
    QObject::connect(&field, &ui::OutcomeEditor::TablePasted,
                     [this](const QString& text) { table = text; });
    field.setText("7");
    field.show();
  }
  ui::OutcomeEditor field{nullptr};
  QString table;
};

void Copy(const QString& text) { QGuiApplication::clipboard()->setText(text); }

void PasteByMenu(Editor& editor) {
  QContextMenuEvent event(QContextMenuEvent::Mouse, {1, 1}, editor.field.mapToGlobal(QPoint(1, 1)));
  QApplication::sendEvent(&editor.field, &event);
  auto* menu = qobject_cast<QMenu*>(QApplication::activePopupWidget());
  ASSERT_NE(menu, nullptr);
  for (QAction* item : menu->actions())
    if (item->text().startsWith("&Paste")) item->trigger();
  menu->close();
}

void PasteByKey(Editor& editor) { QTest::keyClick(&editor.field, Qt::Key_V, Qt::ControlModifier); }

void PasteByDrop(Editor& editor) {
  QMimeData dragged;
  dragged.setText(QGuiApplication::clipboard()->text());
  QDragEnterEvent enter({1, 1}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&editor.field, &enter);
  QDropEvent event({1, 1}, Qt::CopyAction, &dragged, Qt::LeftButton, Qt::NoModifier);
  QApplication::sendEvent(&editor.field, &event);
}

TEST(OutcomeEditor, HandsATableOverByEveryRoad) {
  for (const auto& paste : {PasteByKey, PasteByMenu, PasteByDrop}) {
    for (const char* text : {"1\n2", "1\t2", "1\r\n2\r\n"}) {
      Editor editor;
      Copy(text);
      paste(editor);
      EXPECT_EQ(editor.table, text);
      EXPECT_EQ(editor.field.text(), "7");
    }
  }
}

TEST(OutcomeEditor, TakesOneCellWithoutItsLineEnd) {
  for (const auto& paste : {PasteByKey, PasteByMenu, PasteByDrop}) {
    for (const char* text : {"0.5", "0.5\r\n", "\t0.5\n"}) {
      Editor editor;
      editor.field.clear();
      Copy(text);
      paste(editor);
      EXPECT_EQ(editor.field.text(), "0.5");
      EXPECT_TRUE(editor.table.isEmpty());
    }
  }
}

TEST(OutcomeEditor, TakesNoLineEndByARoadThatNobodyThoughtOf) {
  Editor editor;
  editor.field.insert("1\n2");
  EXPECT_EQ(editor.field.text(), "7");
}

TEST(PlainText, IsNoPageThatIsOfferedWithoutText) {
  QMimeData page;
  page.setHtml("<b>7</b>");
  EXPECT_TRUE(ui::PlainText(&page).isEmpty());
  page.setText("8");
  EXPECT_EQ(ui::PlainText(&page), "8");
  EXPECT_TRUE(ui::PlainText(nullptr).isEmpty());
}

}  // namespace
