// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/ProgressCounter.h"

#include <QAccessibleWidget>
#include <QLocale>
#include <QPainter>

#include "platform/system/Clock.h"

namespace ui {

namespace {

class AccessibleCounter : public QAccessibleWidget, public QAccessibleValueInterface {
  public:
    explicit AccessibleCounter(ProgressCounter* counter)
        : QAccessibleWidget(counter, QAccessible::ProgressBar) {}

    void* interface_cast(QAccessible::InterfaceType type) override {
        if (type == QAccessible::ValueInterface) return static_cast<QAccessibleValueInterface*>(this);
        return QAccessibleWidget::interface_cast(type);
    }
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Value) return widget()->locale().toString(counter()->value(), 'f', 0);
        if (kind == QAccessible::Description) return counter()->hint.text();
        return QAccessibleWidget::text(kind);
    }
    QVariant currentValue() const override { return counter()->value(); }
    void setCurrentValue(const QVariant&) override {}
    QVariant maximumValue() const override { return counter()->maximum(); }
    QVariant minimumValue() const override { return 0.0; }
    QVariant minimumStepSize() const override { return 1.0; }

  private:
    ProgressCounter* counter() const { return static_cast<ProgressCounter*>(widget()); }
};

QAccessibleInterface* accessibleCounter(const QString&, QObject* object) {
    auto* counter = qobject_cast<ProgressCounter*>(object);
    return counter ? new AccessibleCounter(counter) : nullptr;
}

}  // namespace

ProgressCounter::ProgressCounter(QWidget* parent) : QWidget(parent) {
    static const bool installed = (QAccessible::installFactory(accessibleCounter), true);
    Q_UNUSED(installed)
    setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Fixed);
}

void ProgressCounter::setMaximum(double maximum) {
    m_maximum = maximum;
    update();
}

void ProgressCounter::setValue(double value) {
    if (value == m_value) return;
    const int before = isVisible() ? barLength() : 0;
    m_value = value;
    if (isVisible() && barLength() != before) repaint();
    constexpr qint64 secondsBetween = 5;
    if (value == 0 || !m_toldAt.isValid() || m_toldAt.secsTo(sys::clock().now()) >= secondsBetween) tell();
    Q_EMIT valueChanged(value);
}

bool ProgressCounter::event(QEvent* event) {
    hint.prepare(*this, *event);
    return QWidget::event(event);
}

void ProgressCounter::tell() {
    m_toldAt = sys::clock().now();
    QAccessibleValueChangeEvent event(this, m_value);
    QAccessible::updateAccessibility(&event);
}

void ProgressCounter::setBarColor(const QColor& color) {
    m_barColor = color;
    update();
}

QSize ProgressCounter::sizeHint() const {
    return {160, 18};
}

QSize ProgressCounter::minimumSizeHint() const {
    return {80, 18};
}

double ProgressCounter::share() const {
    return m_maximum > 0 ? qBound(0.0, m_value / m_maximum, 1.0) : 0.0;
}

int ProgressCounter::barLength() const {
    return static_cast<int>(share() * width() * devicePixelRatioF());
}

void ProgressCounter::paintEvent(QPaintEvent*) {
    QPainter painter(this);
    painter.setRenderHint(QPainter::Antialiasing);
    const QRectF frame = QRectF(rect()).adjusted(0.5, 0.5, -0.5, -0.5);
    painter.setPen(palette().color(QPalette::Dark));
    painter.setBrush(palette().base());
    painter.drawRoundedRect(frame, 2, 2);

    QRectF bar = frame.adjusted(1.5, 1.5, -1.5, -1.5);
    bar.setWidth(bar.width() * share());
    if (bar.width() <= 0) return;
    if (layoutDirection() == Qt::RightToLeft) bar.moveRight(frame.right() - 1.5);
    painter.setPen(Qt::NoPen);
    painter.setBrush(m_barColor.isValid() ? m_barColor
                                          : palette().color(QPalette::Active, QPalette::Highlight));
    painter.drawRoundedRect(bar, 1, 1);
}

}  // namespace ui
