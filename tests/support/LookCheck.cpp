// SPDX-License-Identifier: GPL-3.0-or-later
#include "support/LookCheck.h"

#include <algorithm>
#include <QAbstractScrollArea>
#include <QAccessible>
#include <QCheckBox>
#include <QComboBox>
#include <QDir>
#include <QDockWidget>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QMenu>
#include <QMenuBar>
#include <QPushButton>
#include <QRadioButton>
#include <QRegularExpression>
#include <QScrollBar>
#include <QSet>
#include <QSplitterHandle>
#include <QStatusBar>
#include <QStyle>
#include <QStyleOptionComboBox>
#include <QTabBar>
#include <QToolBar>
#include <QToolButton>

#include "support/ColorContrast.h"

namespace testing_support {

namespace {

QString nameOf(const QWidget& widget) {
    const QString name =
        widget.objectName().isEmpty() ? widget.metaObject()->className() : widget.objectName();
    return widget.parentWidget() ? nameOf(*widget.parentWidget()) + '/' + name : name;
}

QString fault(const QWidget& widget, const QString& what) {
    const auto size = [](const QSize& given) {
        return QString("%1x%2").arg(given.width()).arg(given.height());
    };
    return QString("%1 %2 (has %3, asks for %4)")
        .arg(nameOf(widget), what, size(widget.size()), size(widget.sizeHint()));
}

/// The controls of the window that the user sees, but not what scrolls under an edge.
QList<QWidget*> controlsOf(QWidget& window) {
    QList<QWidget*> controls;
    for (auto* widget : window.findChildren<QWidget*>()) {
        if (!widget->isVisible() || widget->window() != &window) continue;
        bool scrolls = false;
        for (QWidget* above = widget->parentWidget(); above && above != &window;
             above = above->parentWidget())
            scrolls = scrolls || qobject_cast<QAbstractScrollArea*>(above) || qobject_cast<QComboBox*>(above);
        if (!scrolls) controls << widget;
    }
    return controls;
}

bool isCut(const QWidget& widget) {
    const auto smallerThan = [&widget](const QSize& wanted) {
        return widget.width() < wanted.width() || widget.height() < wanted.height();
    };
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) {
        if (label->text().isEmpty()) return false;
        if (label->wordWrap()) return label->height() < label->heightForWidth(label->width());
        // A line that describes what is chosen keeps its width and may be longer than it.
        if (label->sizePolicy().horizontalPolicy() == QSizePolicy::Ignored)
            return label->height() < label->sizeHint().height();
        return smallerThan(label->sizeHint());
    }
    if (const auto* list = qobject_cast<const QComboBox*>(&widget)) {
        // Names of accounts and tables may be longer than any list.
        constexpr int longest = 200;
        QStyleOptionComboBox option;
        option.initFrom(list);
        const QRect room =
            list->style()->subControlRect(QStyle::CC_ComboBox, &option, QStyle::SC_ComboBoxEditField, list);
        const int needed = list->fontMetrics().horizontalAdvance(list->currentText());
        return list->height() < list->sizeHint().height() || room.width() < std::min(needed, longest);
    }
    if (const auto* field = qobject_cast<const QLineEdit*>(&widget)) {
        constexpr int shortest = 3;
        const int needed = field->fontMetrics().horizontalAdvance(QString(shortest, '0')) + 8;
        return field->height() < field->sizeHint().height() || field->width() < needed;
    }
    const auto* button = qobject_cast<const QPushButton*>(&widget);
    if (button && button->text() == "...")
        return button->width() < button->fontMetrics().horizontalAdvance("...") + 8;
    if (qobject_cast<const QAbstractButton*>(&widget) || qobject_cast<const QMenuBar*>(&widget) ||
        qobject_cast<const QTabBar*>(&widget) || qobject_cast<const QGroupBox*>(&widget))
        return smallerThan(widget.sizeHint());
    return false;
}

/// Parts of other controls, and what overlaps something by design.
bool isPart(const QWidget& widget) {
    return qobject_cast<const QScrollBar*>(&widget) || qobject_cast<const QSplitterHandle*>(&widget) ||
           widget.objectName().startsWith("qt_") || widget.inherits("QQuickWidget") ||
           widget.inherits("QSizeGrip") || widget.inherits("QMenu") ||
           qobject_cast<const QLineEdit*>(widget.parentWidget()) ||
           qobject_cast<const QAbstractScrollArea*>(widget.parentWidget());
}

/// The darkest end of a gradient, as all texts on gradients are dark.
QColor plainColor(const QBrush& brush) {
    if (!brush.gradient()) return brush.color();
    const QGradientStops stops = brush.gradient()->stops();
    return std::min_element(stops.begin(), stops.end(),
                            [](const QGradientStop& a, const QGradientStop& b) {
                                return luminance(a.second) < luminance(b.second);
                            })
        ->second;
}

bool takesTab(const QWidget& widget) {
    return widget.isVisible() && widget.isEnabled() && (widget.focusPolicy() & Qt::TabFocus) &&
           !widget.focusProxy() && !isPart(widget);
}

/// The radio buttons of a group are one stop of the Tab key.
bool isOtherOption(const QWidget& widget) {
    const auto* option = qobject_cast<const QRadioButton*>(&widget);
    return option && !option->isChecked();
}

void read(QAccessibleInterface& face, QStringList& names) {
    for (int i = 0; i < face.childCount(); ++i) {
        QAccessibleInterface* child = face.child(i);
        const auto* widget = child ? qobject_cast<QWidget*>(child->object()) : nullptr;
        if (!widget) continue;
        if (takesTab(*widget) && !isOtherOption(*widget)) names << widget->objectName();
        // The browser draws what is in a message view.
        if (!qobject_cast<const QAbstractScrollArea*>(widget) && !qobject_cast<const QComboBox*>(widget) &&
            !widget->inherits("HtmlView"))
            read(*child, names);
    }
}

QColor groundOf(const QWidget& widget) {
    if (qobject_cast<const QPushButton*>(&widget) || qobject_cast<const QComboBox*>(&widget))
        return widget.palette().color(QPalette::Button);
    const QWidget* ground = &widget;
    while (!ground->autoFillBackground() && !ground->isWindow())
        ground = ground->parentWidget();
    return plainColor(ground->palette().brush(ground->backgroundRole()));
}

}  // namespace

QStringList faultsOfLayout(QWidget& window) {
    QStringList faults;
    const QList<QWidget*> controls = controlsOf(window);
    for (const QWidget* widget : controls) {
        if (isPart(*widget)) continue;
        if (!widget->parentWidget()->rect().contains(widget->geometry()))
            faults << fault(*widget, "stands outside");
        if (isCut(*widget)) faults << fault(*widget, "is cut");
        for (const QWidget* other : controls) {
            if (other == widget) break;
            if (other->parentWidget() == widget->parentWidget() && !isPart(*other) &&
                other->geometry().intersects(widget->geometry()))
                faults << fault(*widget, "lies over " + nameOf(*other));
        }
    }
    for (const auto* extension : window.findChildren<QToolButton*>("qt_toolbar_ext_button"))
        if (extension->isVisible()) faults << fault(*extension, "hides buttons");
    return faults;
}

QStringList faultsOfContrast(QWidget& window) {
    QStringList faults;
    for (const QWidget* widget : controlsOf(window)) {
        const auto* field = qobject_cast<const QLineEdit*>(widget);
        const auto* label = qobject_cast<const QLabel*>(widget);
        const auto* button = qobject_cast<const QAbstractButton*>(widget);
        const auto* list = qobject_cast<const QComboBox*>(widget);
        if (!field && !list && !(label && !label->text().isEmpty()) && !(button && !button->text().isEmpty()))
            continue;
        const QColor text = widget->palette().color(field ? QPalette::Text : widget->foregroundRole());
        const QColor ground = field ? widget->palette().color(QPalette::Base) : groundOf(*widget);
        const double found = contrast(text, ground);
        if (found < (widget->isEnabled() ? 4.5 : 3.0))
            faults
                << QString("%1: %2 on %3 is %4").arg(nameOf(*widget), text.name(), ground.name()).arg(found);
    }
    return faults;
}

QStringList faultsOfAccess(QWidget& window) {
    QStringList faults;
    constexpr int smallest = 24;
    for (const QWidget* widget : controlsOf(window)) {
        if (!(widget->focusPolicy() & Qt::TabFocus) || widget->focusProxy() || isPart(*widget)) continue;
        QAccessibleInterface* face = QAccessible::queryAccessibleInterface(const_cast<QWidget*>(widget));
        const bool named = !face->text(QAccessible::Name).isEmpty() || !widget->accessibleName().isEmpty();
        if (widget->objectName().isEmpty() || !named || face->role() == QAccessible::NoRole)
            faults << fault(*widget, "is not named");
        if (widget->width() < smallest || widget->height() < smallest) faults << fault(*widget, "is small");
    }
    return faults;
}

QStringList otherNames(const QWidget& window, const QHash<QString, QString>& wanted) {
    QStringList others;
    for (auto it = wanted.begin(); it != wanted.end(); ++it) {
        auto* control = window.findChild<QWidget*>(it.key());
        if (!control) {
            others << it.key() + ": missing";
            continue;
        }
        QString name = control->accessibleName();
        // The interface of a drop-down list says its current entry; its label is found by the relation.
        if (name == it.value() && !qobject_cast<QComboBox*>(control))
            name = QAccessible::queryAccessibleInterface(control)->text(QAccessible::Name);
        if (name != it.value()) others << it.key() + ": " + name;
    }
    return others;
}

QStringList faultsOfMnemonics(QWidget& window) {
    QStringList faults;
    const auto verify = [&](const QStringList& captions) {
        QSet<QChar> letters;
        for (const QString& caption : captions) {
            const QString plain = QString(caption).remove("&&");
            const qsizetype at = plain.indexOf('&');
            if (at < 0 || at + 1 == plain.size()) continue;
            const QChar letter = plain[at + 1].toLower();
            if (letters.contains(letter)) faults << QString("%1: %2").arg(captions.join(", "), letter);
            letters << letter;
        }
    };
    QList<const QWidget*> menus;
    for (const auto* menu : window.findChildren<QMenu*>())
        menus << menu;
    for (const auto* bar : window.findChildren<QMenuBar*>())
        menus << bar;
    for (const QWidget* menu : menus) {
        QStringList captions;
        for (const QAction* action : menu->actions())
            captions << action->text();
        verify(captions);
    }
    QStringList captions;
    for (const auto* button : window.findChildren<QPushButton*>())
        if (button->window() == &window) captions << button->text();
    verify(captions);
    return faults;
}

QStringList orderRead(QWidget& window) {
    QStringList names;
    read(*QAccessible::queryAccessibleInterface(&window), names);
    return names;
}

QStringList orderOfTab(QWidget& window) {
    QStringList names;
    for (const QWidget* widget = window.nextInFocusChain(); widget != &window;
         widget = widget->nextInFocusChain())
        if (widget->window() == &window && takesTab(*widget) && !isOtherOption(*widget))
            names << widget->objectName();
    return names;
}

QString longer(const QString& text) {
    static const QRegularExpression letter("\\pL");
    if (!text.contains(letter)) return text;
    static const QRegularExpression tail("[:.…]*\\s*$");
    const qsizetype end = text.indexOf(tail);
    QString more;
    for (qsizetype i = 0; i < text.size() / 3 + 1; ++i)
        more += "aeinort"[i % 7];
    return QString(text).insert(end, more);
}

void makeTextsLonger(QWidget& window) {
    window.setWindowTitle(longer(window.windowTitle()));
    for (auto* label : window.findChildren<QLabel*>())
        label->setText(longer(label->text()));
    for (auto* button : window.findChildren<QAbstractButton*>())
        button->setText(longer(button->text()));
}

QByteArray withLongerTexts(const QByteArray& languageFile) {
    QString file = QString::fromLatin1(languageFile);
    static const QRegularExpression italian("(\\[<LNG1>\\])([^\\[\\r\\n]*)(\\[<LNG2>\\])");
    QString result;
    qsizetype from = 0;
    for (auto found = italian.globalMatch(file); found.hasNext();) {
        const QRegularExpressionMatch match = found.next();
        result += file.mid(from, match.capturedStart() - from) + match.captured(1) +
                  longer(match.captured(2)) + match.captured(3);
        from = match.capturedEnd();
    }
    return (result + file.mid(from)).toLatin1();
}

void keepPicture(QWidget& window, const QString& name) {
    const QString folder = qEnvironmentVariable("VESTROLA_SHOTS");
    if (folder.isEmpty()) return;
    if (!QDir().mkpath(folder) || !window.grab().save(folder + '/' + name + ".png")) qFatal("no picture");
}

}  // namespace testing_support
