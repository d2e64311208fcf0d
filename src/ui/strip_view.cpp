#include "ui/strip_view.h"

#include <QHelpEvent>
#include <QKeyEvent>
#include <QSignalBlocker>
#include <QStyle>
#include <QStyleOptionTab>
#include <QToolTip>

#include <algorithm>

#include "catalog/own_texts.h"
#include "ui/readable_colour.h"
#include "ui/text.h"

namespace ui {

StripView::StripView(QWidget* parent) : QTabBar(parent) {
  setObjectName(QStringLiteral("TabStrip"));
  setAccessibleName(Shown(OwnText(Own::Screens)));
  setExpanding(false);
  setDrawBase(true);
  setElideMode(Qt::ElideNone);
  setUsesScrollButtons(true);
  // A click takes the focus, so that the field that had it is left before the tab is looked at.
  setFocusPolicy(Qt::StrongFocus);
  connect(this, &QTabBar::currentChanged, this,
          [this](int index) { emit Chosen(tabData(index).toString()); });
}

void StripView::Push(const screen::TabStrip* strip) {
  const QSignalBlocker quiet(this);
  if (!strip) {
    hide();
    return;
  }
  if (strip->tabs != shown_) Fill(*strip);
  for (int i = 0; i < count(); ++i)
    if (tabData(i).toString() == Shown(strip->selected) && i != currentIndex()) setCurrentIndex(i);
  setEnabled(strip->enabled);
  setVisible(strip->visible && count() > 0);
}

void StripView::Fill(const screen::TabStrip& strip) {
  const int wanted = static_cast<int>(strip.tabs.size());
  while (count() > wanted) removeTab(count() - 1);
  while (count() < wanted) addTab(QString());
  for (int i = 0; i < wanted; ++i) {
    const screen::Tab& tab = strip.tabs[static_cast<std::size_t>(i)];
    setTabText(i, Shown(tab.caption));
    setTabToolTip(i, Lines(tab.closed.empty() ? tab.tip : tab.closed).trimmed());
    const QString name = Shown(tab.caption).trimmed();
    setAccessibleTabName(
        i, tab.closed.empty() ? name : Shown(OwnText(Own::ClosedTabSpoken, {Typed(name)})));
    setTabData(i, Shown(tab.key));
  }
  shown_ = strip.tabs;
  GreyClosed();
}

// Grey, not disabled: a click is to say why.
void StripView::GreyClosed() {
  const QColor grey =
      QuietOn(QPalette().color(QPalette::Window), QPalette().color(QPalette::WindowText));
  for (int i = 0; i < count(); ++i)
    setTabTextColor(i, shown_[static_cast<std::size_t>(i)].closed.empty() ? QColor() : grey);
}

void StripView::changeEvent(QEvent* event) {
  QTabBar::changeEvent(event);
  if (event->type() == QEvent::PaletteChange && count() == static_cast<int>(shown_.size()))
    GreyClosed();
}

bool StripView::Step(int direction, const std::function<bool(const QString& key)>& isOpen) {
  const int here = currentIndex();
  const QString key = tabData(here).toString();
  for (int i = 1; i < count(); ++i) {
    const int index = (here + direction * i + count()) % count();
    if (!isTabEnabled(index) || !isOpen(tabData(index).toString())) continue;
    setCurrentIndex(index);
    return tabData(currentIndex()).toString() != key;
  }
  return false;
}

// A reader tells a tab's tip as it is kept: only the shown one has the marks that make it wrap.
bool StripView::event(QEvent* event) {
  if (event->type() != QEvent::ToolTip) return QTabBar::event(event);
  const auto& help = static_cast<const QHelpEvent&>(*event);
  const QString tip = tabToolTip(tabAt(help.pos()));
  QToolTip::showText(help.globalPos(), TipText(Typed(tip)), this);
  return true;
}

// The caption on two lines, broken where the longer line is shortest.
QString StripView::Folded(const QString& caption) const {
  constexpr int kFewWords = 12;  // characters that need no second line
  if (caption.size() <= kFewWords) return caption;
  QString best = caption;
  int width = fontMetrics().horizontalAdvance(caption);
  for (qsizetype i = caption.indexOf(QLatin1Char(' ')); i > 0;
       i = caption.indexOf(QLatin1Char(' '), i + 1)) {
    const QString first = caption.left(i);
    const QString second = caption.mid(i + 1);
    const int longer =
        std::max(fontMetrics().horizontalAdvance(first), fontMetrics().horizontalAdvance(second));
    if (longer >= width) continue;
    width = longer;
    best = first + QLatin1Char('\n') + second;
  }
  return best;
}

QSize StripView::tabSizeHint(int index) const {
  QStyleOptionTab option;
  QTabBar::initStyleOption(&option, index);
  const QSize text =
      fontMetrics().size(Qt::TextShowMnemonic, Folded(tabText(index)) + QLatin1Char('\n'));
  const QSize space(style()->pixelMetric(QStyle::PM_TabBarTabHSpace, &option, this),
                    style()->pixelMetric(QStyle::PM_TabBarTabVSpace, &option, this));
  const int twoLines = 2 * fontMetrics().lineSpacing();
  return style()->sizeFromContents(QStyle::CT_TabBarTab, &option,
                                   QSize(text.width(), twoLines) + space, this);
}

void StripView::keyPressEvent(QKeyEvent* event) {
  byKey_ = true;
  QTabBar::keyPressEvent(event);
  byKey_ = false;
}

QSize StripView::minimumTabSizeHint(int index) const { return tabSizeHint(index); }

void StripView::initStyleOption(QStyleOptionTab* option, int index) const {
  QTabBar::initStyleOption(option, index);
  option->text = Folded(tabText(index));
}

}  // namespace ui
