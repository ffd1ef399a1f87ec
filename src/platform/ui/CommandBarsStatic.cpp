// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/CommandBarsStatic.h"

#include <QAccessibleWidget>
#include <QPainter>
#include <QStyle>
#include <utility>

namespace ui {

namespace {

class AccessibleStatic : public QAccessibleWidget {
  public:
    explicit AccessibleStatic(StaticItem* item) : QAccessibleWidget(item, QAccessible::StaticText) {}
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) return static_cast<StaticItem*>(widget())->Text();
        return QAccessibleWidget::text(kind);
    }
};

QAccessibleInterface* accessibleStatic(const QString&, QObject* object) {
    auto* item = qobject_cast<StaticItem*>(object);
    return item ? new AccessibleStatic(item) : nullptr;
}

}  // namespace

StaticItem::StaticItem(const QString& text, QWidget* parent) : QWidget(parent), m_text(text) {
    static const bool installed = (QAccessible::installFactory(accessibleStatic), true);
    Q_UNUSED(installed)
    setSizePolicy(QSizePolicy::Preferred, QSizePolicy::Fixed);
}

void StaticItem::setText(const QString& text) {
    if (text == m_text) return;
    m_text = text;
    updateGeometry();
    update();
}

void StaticItem::announce() {
    if (std::exchange(m_announced, m_text) == m_text) return;
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

QSize StaticItem::sizeHint() const {
    return {fontMetrics().horizontalAdvance(m_text) + 1, fontMetrics().height()};
}

QSize StaticItem::minimumSizeHint() const {
    return {0, fontMetrics().height()};
}

void StaticItem::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    style()->drawItemText(&painter, rect(), Qt::AlignLeft | Qt::AlignVCenter, palette(), isEnabled(),
                          fontMetrics().elidedText(m_text, Qt::ElideRight, width()), foregroundRole());
}

}  // namespace ui
