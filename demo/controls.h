// The controls of a window by their names, and the mouse on them.
#pragma once

#include <QAbstractButton>
#include <QCheckBox>
#include <QTest>

template <class Control>
Control* find(QWidget& window, const char* name) {
    auto* control = window.findChild<Control*>(name);
    if (!control) qFatal("no control %s", name);
    return control;
}

inline void click(QWidget& window, const char* name) {
    auto* button = find<QAbstractButton>(window, name);
    // A check box takes the click on its box, not in the middle of the row that it fills.
    const QPoint place =
        qobject_cast<QCheckBox*>(button) ? QPoint(10, button->height() / 2) : button->rect().center();
    QTest::mouseClick(button, Qt::LeftButton, {}, place);
}
