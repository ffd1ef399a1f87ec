// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/LookChange.h"

#include <algorithm>
#include <QAbstractButton>
#include <QAbstractScrollArea>
#include <QApplication>
#include <QCheckBox>
#include <QComboBox>
#include <QImage>
#include <QLineEdit>
#include <QPixmap>
#include <QRadioButton>
#include <QScopeGuard>
#include <QScrollBar>

#include "support/ColorContrast.h"

namespace testing_support {

namespace {

constexpr double leastChange = 3;

QImage pictureOf(QWidget& window, const QRect& place) {
    return window.grab(place).toImage();
}

/// The contrast of the pixel that differs most. `rimOnly`: of the pixels within this distance from the edge,
/// 0 for all.
double greatestChange(const QImage& before, const QImage& after, int rimOnly = 0) {
    double greatest = 1;
    const QRect inner = rimOnly ? before.rect().adjusted(rimOnly, rimOnly, -rimOnly, -rimOnly) : QRect();
    for (int y = 0; y < before.height(); ++y)
        for (int x = 0; x < before.width(); ++x)
            if (before.pixel(x, y) != after.pixel(x, y) && !inner.contains(x, y))
                greatest = std::max(greatest, contrast(before.pixelColor(x, y), after.pixelColor(x, y)));
    return greatest;
}

bool isReached(const QWidget& widget) {
    // The browser draws a message view.
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) &&
           !widget.focusProxy() && !widget.inherits("HtmlView") && !widget.inherits("QQuickWidget") &&
           !qobject_cast<const QScrollBar*>(&widget) && !widget.objectName().startsWith("qt_");
}

QString faultOf(const QWidget& widget, const char* what, double found) {
    return QString("%1 %2 %3 by %4")
        .arg(widget.metaObject()->className(), widget.objectName(), what)
        .arg(found);
}

}  // namespace

QStringList faultsOfFocus(QWidget& window) {
    QStringList faults;
    window.setAttribute(Qt::WA_KeyboardFocusChange);  // as after a press of the Tab key
    QWidget* const before = QApplication::focusWidget();
    const auto back = qScopeGuard([before] {
        if (before) before->setFocus();
    });
    for (auto* widget : window.findChildren<QWidget*>()) {
        if (!isReached(*widget) || widget->window() != &window) continue;
        constexpr int around = 3;
        const QRect place = QRect(widget->mapTo(&window, QPoint()), widget->size())
                                .adjusted(-around, -around, around, around)
                                .intersected(window.rect());
        if (QWidget* focused = QApplication::focusWidget()) focused->clearFocus();
        const QImage without = pictureOf(window, place);
        widget->setFocus(Qt::TabFocusReason);
        if (!widget->hasFocus()) continue;
        // The caret of a field is no frame.
        const bool hasCaret = qobject_cast<QLineEdit*>(widget) || widget->inherits("QsciScintilla");
        const double found = greatestChange(without, pictureOf(window, place), hasCaret ? around + 3 : 0);
        if (found < leastChange) faults << faultOf(*widget, "shows the focus", found);
    }
    return faults;
}

QStringList faultsOfMarks(QWidget& window) {
    QStringList faults;
    for (auto* button : window.findChildren<QAbstractButton*>()) {
        const bool marks = qobject_cast<QCheckBox*>(button) || qobject_cast<QRadioButton*>(button);
        if (!marks || !button->isVisible() || button->window() != &window) continue;
        const QSignalBlocker quiet(button);
        const bool on = button->isChecked();
        button->setAutoExclusive(false);
        const auto look = [&](bool checked) {
            button->setChecked(checked);
            return button->grab().toImage();
        };
        const double found = greatestChange(look(false), look(true));
        button->setChecked(on);
        button->setAutoExclusive(qobject_cast<QRadioButton*>(button) != nullptr);
        if (found < leastChange) faults << faultOf(*button, "shows its mark", found);
    }
    return faults;
}

}  // namespace testing_support
