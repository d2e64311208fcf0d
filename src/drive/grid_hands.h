#pragma once

#include <string>

#include "drive/stage.h"

namespace drive {

// The hands on the table of the shown screen. Rows are 1-based, columns 0-based.

// Types into the concentration cell of the row and commits it by Enter.
void TypeIntoCell(Stage& stage, int row, const std::string& text);
// Types into the empty row at the end.
void AddRow(Stage& stage, const std::string& text);
void DeleteRow(Stage& stage, int row);
// Makes the row the current one by a click on its concentration cell.
void GoToRow(Stage& stage, int row);
// Selects those rows by a click on the first one and one with Shift on the last one.
void SelectRows(Stage& stage, int first, int last);
// Where the cursor stands, and the selected rows, such as "3 to 5, 8". Failure when the table shows
// another one than the screen's rules hold.
std::string CursorRow(Stage& stage);
std::string SelectedRows(Stage& stage);
// Opens the editor of the row's concentration and leaves it open.
void OpenEditor(Stage& stage, int row);
// Pastes what the clipboard holds from the current row on.
void PasteRows(Stage& stage);
// Puts a text on the clipboard; or HTML, with a plain text beside it where there is one.
void OfferText(const std::string& text);
void OfferHtml(const std::string& html, const std::string* text);
// What the table shows there. Failure when it differs from what the screen's rules say.
std::string CellText(Stage& stage, const Target& grid, int row, int column);

}  // namespace drive
