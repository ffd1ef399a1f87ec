// SPDX-License-Identifier: GPL-3.0-or-later
#include "windows/message/editor_stage.h"

#include <QApplication>
#include <QFile>
#include <QKeyEvent>
#include <QTabBar>
#include <QTimer>
#include <QToolButton>

#include "platform/html/ViewFixture.h"
#include "windows/entry/Finestre.h"

namespace testing_support {

EditorStage::EditorStage() {
    window();
    editor().NuovoMessaggio();
    show();
    design().wake();
    if (!design().isLive()) qFatal("the browser does not come up");
}

void EditorStage::show() {
    if (!editor().isVisible()) window().activateWindow();
    editor().show();
    editor().activateWindow();
    if (!QTest::qWaitFor([this] { return editor().isActiveWindow(); })) qFatal("the editor does not show");
}

void EditorStage::begin() {
    ui::MessageDialog::reset();
    ui::FileDialog::reset();
    ends.clear();
    show();
    editor().tb->setCurrentIndex(0);
    editor().fileAperto = false;
    editor().percorsoFile.clear();
    editor().NuovoMessaggio();
    tool("cmdAllegatiDel").setEnabled(false);
    design().setFocus();
    settle(design());
    // What the last test left pending marks nothing in this one.
    editor().titoloFile = "[NuovoFile.mss]";
    editor().ImpostaTitolo();
}

frmEditor& EditorStage::editor() {
    return finestre::Editor();
}

ui::Command& EditorStage::tool(const QString& name) {
    ui::Command* command = editor().Commands().GetToolButton(name);
    if (!command) qFatal("no tool %s", qUtf8Printable(name));
    return *command;
}

void EditorStage::start(const QString& name) {
    auto* button = editor().findChild<QToolButton*>(name);
    if (button && button->isVisible() && button->popupMode() != QToolButton::InstantPopup) {
        QTest::mouseClick(button, Qt::LeftButton);
        return;
    }
    auto* action = editor().findChild<QAction*>(name);
    if (!action) qFatal("no command %s", qUtf8Printable(name));
    action->trigger();
}

void EditorStage::chooseTab(int index) {
    QTabBar* tabs = editor().tb->tabBar();
    QTest::mouseClick(tabs, Qt::LeftButton, {}, tabs->tabRect(index).center());
    if (editor().tb->currentIndex() != index) qFatal("the tab was not chosen");
}

void EditorStage::press(int key, Qt::KeyboardModifiers modifiers, const QString& text) {
    for (const QEvent::Type type : {QEvent::KeyPress, QEvent::KeyRelease}) {
        QKeyEvent event(type, key, modifiers, text);
        QApplication::sendEvent(design().inputWidget(), &event);
    }
}

void EditorStage::type(const QString& text) {
    for (const QChar c : text)
        press(c.toUpper().unicode(), Qt::NoModifier, c);
}

void EditorStage::fill(const QString& body) {
    static_cast<void>(design().setDocumentHTML("<html><body>" + body + "</body></html>"));
}

void EditorStage::select(const QString& selector, int from, int to) {
    design().evaluate(QStringLiteral("{ const e = document.querySelector('%1'); let t = e;"
                                     " while (t.firstChild) t = t.firstChild;"
                                     " getSelection().setBaseAndExtent(t, %2, t, %3); 1 }")
                          .arg(selector)
                          .arg(from)
                          .arg(to));
    settle(design());
}

QString EditorStage::body() {
    const QString html = design().documentHTML().value();
    const qsizetype from = html.indexOf('>', html.indexOf("<body")) + 1;
    return html.mid(from, html.lastIndexOf("</body>") - from);
}

QByteArray EditorStage::bytes(const QString& name) const {
    QFile file(path(name));
    return file.open(QIODevice::ReadOnly) ? file.readAll() : QByteArray();
}

void EditorStage::write(const QString& name, const QByteArray& bytes) const {
    QFile file(path(name));
    if (!file.open(QIODevice::WriteOnly) || file.write(bytes) != bytes.size())
        qFatal("cannot write %s", qUtf8Printable(name));
}

void EditorStage::saveAs(const QString& name) {
    ui::FileDialog::queue(path(name));
    start("cmdSalvaAs");
}

void EditorStage::open(const QString& name) {
    ui::FileDialog::queue(path(name));
    start("cmdApriMess");
}

void EditorStage::whenModal(std::function<bool(QWidget&)> act) {
    auto* timer = new QTimer(qApp);
    timer->callOnTimeout([timer, act = std::move(act)] {
        QWidget* window = QApplication::activeModalWidget();
        if (!window) return;
        // The editor itself is modal; wait for the window over it.
        timer->stop();
        if (act(*window))
            timer->deleteLater();
        else
            timer->start(0);
    });
    timer->start(0);
}

QByteArray bodyOf(const QByteArray& file) {
    const QByteArray begin("[<INI-MESS>]\r\n");
    const QByteArray end("[<END-MESS>]\r\n");
    const qsizetype from = file.indexOf(begin) + begin.size();
    return file.mid(from, file.lastIndexOf(end) - from);
}

}  // namespace testing_support
