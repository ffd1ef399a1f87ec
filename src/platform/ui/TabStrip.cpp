// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/TabStrip.h"

#include <QEvent>
#include <QPainter>
#include <QStyleOptionTab>
#include <QTabBar>
#include <utility>

#include "platform/text/Words.h"

namespace ui {

namespace {

constexpr int tabHeight = 28;
constexpr int gap = 8;

/// The tabs: flat, the chosen one part of the view above it.
class Tabs : public QTabBar {
  public:
    explicit Tabs(QWidget* parent) : QTabBar(parent) {
        setObjectName("tabs");
        setAccessibleName(Words::tr("Viste"));
        setDrawBase(false);
        setExpanding(false);
        setIconSize({16, 16});
    }

    void setColours(const TabStrip::Colours& colours) {
        m_colours = colours;
        update();
    }

  protected:
    QSize tabSizeHint(int index) const override {
        QSize size = QTabBar::tabSizeHint(index);
        size.setHeight(qMax(tabHeight, fontMetrics().height() + 10));
        return size + QSize(gap, 0);
    }

    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        const QColor rim = palette().color(QPalette::Mid);
        painter.setPen(rim);
        painter.drawLine(0, 0, width(), 0);
        for (int i = 0; i < count(); ++i) {
            QStyleOptionTab tab;
            initStyleOption(&tab, i);
            paintGround(painter, tab.rect, i == currentIndex());
            painter.setPen(rim);
            painter.drawLine(tab.rect.topRight(), tab.rect.bottomRight());
            painter.drawLine(tab.rect.bottomLeft(), tab.rect.bottomRight());
            if (i == 0) painter.drawLine(tab.rect.topLeft(), tab.rect.bottomLeft());
            paintText(painter, tab);
        }
    }

  private:
    void paintGround(QPainter& painter, const QRect& place, bool chosen) const {
        if (chosen) {
            painter.fillRect(place, m_colours.chosen);
            return;
        }
        QLinearGradient shade(place.topLeft(), place.bottomLeft());
        shade.setColorAt(0, m_colours.light);
        shade.setColorAt(1, m_colours.dark);
        painter.fillRect(place.adjusted(0, 1, 0, 0), shade);
    }

    void paintText(QPainter& painter, const QStyleOptionTab& tab) const {
        QRect place = tab.rect.adjusted(gap, 0, -gap, 0);
        const QRect icon(place.left(), place.center().y() - 7, 16, 16);
        tab.icon.paint(&painter, icon);
        place.setLeft(icon.right() + gap);
        style()->drawItemText(&painter, place, Qt::AlignLeft | Qt::AlignVCenter | Qt::TextShowMnemonic,
                              palette(), isEnabled(), tab.text, QPalette::WindowText);
        if (!hasFocus() || !(tab.state & QStyle::State_Selected)) return;
        QStyleOptionFocusRect focus;
        focus.initFrom(this);
        focus.rect = tab.rect.adjusted(3, 3, -3, -3);
        style()->drawPrimitive(QStyle::PE_FrameFocusRect, &focus, &painter, this);
    }

    TabStrip::Colours m_colours;
};

}  // namespace

TabStrip::TabStrip(QWidget* parent) : QTabWidget(parent) {
    setTabBar(new Tabs(this));
    setTabPosition(South);
    setDocumentMode(true);
    tabBar()->installEventFilter(this);
    connect(this, &QTabWidget::currentChanged, this, [this](int index) {
        const int before = std::exchange(m_index, index);
        if (before >= 0) Q_EMIT tabChanged(before, index);
    });
}

void TabStrip::addView(QWidget* view, const QString& caption, const QString& icon) {
    addTab(view, QIcon::fromTheme(icon), caption);
}

void TabStrip::setTabCaption(int index, const QString& caption) {
    setTabText(index, caption);
}

void TabStrip::setColours(const Colours& colours) {
    static_cast<Tabs*>(tabBar())->setColours(colours);
}

void TabStrip::step(int by) {
    setCurrentIndex((currentIndex() + by + count()) % count());
}

bool TabStrip::eventFilter(QObject* watched, QEvent* event) {
    if (event->type() == QEvent::Enter) Q_EMIT pointerEntered();
    return QTabWidget::eventFilter(watched, event);
}

}  // namespace ui
