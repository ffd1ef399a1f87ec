// SPDX-License-Identifier: GPL-3.0-or-later
// The controls of a window by their names, the mouse on them, and the modal windows of the main window's
// commands.
#pragma once

#include <functional>
#include <QAbstractButton>
#include <QCheckBox>
#include <QTest>
#include <QTimer>
#include <QTreeWidget>

#include "windows/entry/Finestre.h"
#include "windows/shell/frmMain.h"

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

/// Clicks on the first group of the main window, which fills the grid.
inline void clickFirstGroup() {
    auto* tree = find<QTreeWidget>(finestre::Main(), "TREE");
    auto* group = tree->topLevelItem(0)->child(0);
    QTest::mouseClick(tree->viewport(), Qt::LeftButton, {}, tree->visualItemRect(group).center());
}

/// Runs one command of the main window. `meanwhile` finds its modal window and prepares it, `take` takes its
/// picture; then it is hidden.
inline void during(const QString& command, const std::function<QWidget&()>& meanwhile,
                   const std::function<void(QWidget&)>& take) {
    QTimer::singleShot(200, [&] {
        QWidget& window = meanwhile();
        take(window);
        window.hide();
    });
    finestre::Main().ComandoPremuto(command);
}
