// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/CountLabel.h"

#include <QAccessibleWidget>

namespace ui {

namespace {

class AccessibleCount : public QAccessibleWidget {
  public:
    explicit AccessibleCount(CountLabel* label) : QAccessibleWidget(label, QAccessible::StaticText) {}
    QString text(QAccessible::Text kind) const override {
        if (kind == QAccessible::Name) return static_cast<CountLabel*>(widget())->text();
        if (kind == QAccessible::Description) return static_cast<CountLabel*>(widget())->hint.text();
        return QAccessibleWidget::text(kind);
    }
    QAccessible::State state() const override {
        QAccessible::State state = QAccessibleWidget::state();
        state.readOnly = true;
        return state;
    }
};

QAccessibleInterface* accessibleCount(const QString&, QObject* object) {
    auto* label = qobject_cast<CountLabel*>(object);
    return label ? new AccessibleCount(label) : nullptr;
}

}  // namespace

CountLabel::CountLabel(const QString& text, QWidget* parent) : QLabel(text, parent) {
    static const bool installed = (QAccessible::installFactory(accessibleCount), true);
    Q_UNUSED(installed)
    // A label with a name of its own sends nothing when its text changes. The name that is read is the text.
    setAccessibleName(QStringLiteral(" "));
}

bool CountLabel::event(QEvent* event) {
    hint.prepare(*this, *event);
    return QLabel::event(event);
}

void CountLabel::tell() {
    QAccessibleEvent event(this, QAccessible::NameChanged);
    QAccessible::updateAccessibility(&event);
}

}  // namespace ui
