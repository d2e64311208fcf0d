#pragma once

#include <QString>

#include <string>

// Texts on their way between the controls and the widgets.
namespace ui {

// Where a line may end within a word; it takes no room.
inline constexpr QChar kBreak(0x200B);

QString Shown(const std::string& text);
std::string Typed(const QString& text);

// The text with line feeds for its carriage returns.
QString Lines(const std::string& text);

// What a label shows: Lines, and with `accessKeys` "&&" as one "&", the mark of an access key
// taken away. A mark stands before a word, so that the & of "R&D" stays. Long words have breaks.
QString LabelText(const std::string& text, bool accessKeys);

// A tip that wraps when it is long.
QString TipText(const std::string& tip);

// The designer's object name of a control: DimLbl_0 for DimLbl(0).
QString DesignName(const std::string& controlName);

}  // namespace ui
