// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/Announcer.h"

#include <QAccessibleWidget>

namespace ui {

namespace {

QAccessibleInterface* accessibleAnnouncer(const QString&, QObject* object) {
    auto* announcer = qobject_cast<Announcer*>(object);
    return announcer ? new QAccessibleWidget(announcer, QAccessible::Notification) : nullptr;
}

}  // namespace

Announcer::Announcer(QWidget* window) : QWidget(window) {
    static const bool installed = (QAccessible::installFactory(accessibleAnnouncer), true);
    Q_UNUSED(installed)
    setFixedSize(1, 1);
    setAttribute(Qt::WA_TransparentForMouseEvents);
    hide();
}

// Qt 6.4 does not pass the alert to assistive programs, but it does report that a notification shows.
void Announcer::say(const QString& sentence) {
    hide();
    setAccessibleName(sentence);
    show();
    QAccessibleEvent alert(this, QAccessible::Alert);
    QAccessible::updateAccessibility(&alert);
}

}  // namespace ui
