#pragma once

#include <QWidget>

#include <string>

// What a screen reader is told: plain words, without the marks that only a screen has a use for.
namespace ui {

// A caption without the sign that leads over to its field, and on one line: "Cover U" of "Cover
// U=".
QString SpokenCaption(const std::string& caption);

// The caption of a field and the unit of its number; either may be empty.
QString SpokenField(const std::string& caption, const QString& unit);

// Only a name that has changed is told.
void GiveName(QWidget& widget, const QString& name);

}  // namespace ui
