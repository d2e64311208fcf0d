#pragma once

#include <QString>
#include <QWidget>

#include <vector>

namespace drive {

// What of the shown window can't be read: a text that is cut or lies over another one, a colour
// too near to its background, a focus out of sight. Empty when there is nothing to say.
std::vector<QString> Illegible(QWidget& window);

// The visible widgets of the window that show a text of their own.
std::vector<QWidget*> TextWidgets(QWidget& window);

// The same for one widget; empty when it can be read.
QString CutText(const QWidget& widget);
QString PaleText(const QWidget& widget, const QImage& picture);

}  // namespace drive
