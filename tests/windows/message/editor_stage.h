// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <functional>
#include <QList>
#include <QMenu>
#include <QTest>
#include <QToolButton>

#include "platform/ui/CommandBars.h"
#include "platform/ui/FileDialog.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/SourceEdit.h"
#include "platform/ui/TabStrip.h"
#include "windows/entry/Posizione.h"
#include "windows/message/frmAllegati.h"
#include "windows/message/frmEditor.h"
#include "windows/store/griglia_stage.h"

namespace testing_support {

/// The editor over a program folder of its own, shown, with the browser in place. Boxes and file dialogs
/// answer from their queues; the end of the program is only noted.
class EditorStage : public StoreStage {
  public:
    EditorStage();

    /// The state after the start of the program and the first opening: an empty document, the design view, no
    /// file.
    void begin();

    frmEditor& editor();
    HtmlView& design() { return *editor().DHTML; }
    ui::SourceEdit& source() { return *editor().CODE; }
    ui::Command& tool(const QString& name);
    QString title() { return editor().windowTitle(); }
    bool marked() { return editor().IsModificato(); }
    QString hint() { return editor().Commands().GetStatic("stcHelp")->Text(); }
    QString subject() { return editor().Commands().GetEdit("txtOggetto")->Text(); }

    /// Clicks the button of a command, or starts it as its menu does where no button is visible; a disabled
    /// one does nothing.
    void start(const QString& name);
    /// A click on the tab.
    void chooseTab(int index);

    /// Sends keys to the design view.
    void press(int key, Qt::KeyboardModifiers modifiers = Qt::NoModifier, const QString& text = {});
    void type(const QString& text);
    /// Sets the document, not marked as changed.
    void fill(const QString& body);
    /// Selects the script's range: "select('p', 0, 5)" in the first text of the first such
    /// element.
    void select(const QString& selector, int from, int to);
    void caret(const QString& selector, int at = 0) { select(selector, at, at); }
    /// The content of the design view's body.
    QString body();

    /// Runs `act` on the window of that class name that opens next over the editor.
    template <class Dialog>
    void inDialog(std::function<void(Dialog&)> act) {
        whenModal([act](QWidget& window) {
            auto* dialog = qobject_cast<Dialog*>(&window);
            if (!dialog) return false;
            act(*dialog);
            return true;
        });
    }
    template <class Control>
    static Control& in(QWidget& window, const QString& name) {
        auto* control = window.findChild<Control*>(name);
        if (!control) qFatal("no control %s", qUtf8Printable(name));
        return *control;
    }

    QString path(const QString& name) const { return folder.path(name); }
    QByteArray bytes(const QString& name) const;
    void write(const QString& name, const QByteArray& bytes) const;
    /// Saves under a name that the file dialog returns.
    void saveAs(const QString& name);
    void open(const QString& name);

  private:
    void show();
    static void whenModal(std::function<bool(QWidget&)> act);
};

/// What the program passes to the editor, for a test's own editor; it has no window of page properties.
inline frmEditor::Vicini aroundEditor() {
    return {{CaricaPosizioneForm, SalvaPosizioneForm}, {}};
}

/// The body rows of a message file.
QByteArray bodyOf(const QByteArray& file);

}  // namespace testing_support
