// SPDX-License-Identifier: GPL-3.0-or-later
// The box of a failure and every menu in each language: nothing cut or covered, and all of it on the screen;
// the screen and its scale come from outside, as for windows_test. With VESTROLA_SHOTS set to a folder,
// pictures are left there.
#include <QMenu>
#include <QMessageBox>
#include <QPushButton>
#include <QScopeGuard>
#include <QTimer>

#include "platform/jet/Failure.h"
#include "platform/Status.h"
#include "platform/ui/MessageDialog.h"
#include "platform/ui/Unattended.h"
#include "support/LookCheck.h"
#include "support/TestClass.h"
#include "windows/core/Evento.h"
#include "windows/entry/every_window.h"

namespace menus_test {

using namespace testing_support;

namespace {

/// The longest text that the database engine has, and a short one.
const QList<Status> failures{
    Status(ErrorCode::PathAccess,
           Phrase("Il file \"%1\" non è un giornale di questo database: è un collegamento o "
                  "appartiene a chi non può scrivere il database. Il database "
                  "non viene aperto finché il file resta al suo posto."_tr,
                  std::string("/srv/documenti/Mailing/Indirizzi.mdb.giornale"))),
    Status(ErrorCode::DamagedDatabase,
           Phrase("Il database è danneggiato: %1."_tr, Phrase("la pagina %1 non contiene righe"_tr, 17)))};

/// Has `shown` called with the box that comes up next, and closes it.
void whenABoxComesUp(const std::function<void(QMessageBox&)>& shown) {
    QTimer::singleShot(0, qApp, [shown] {
        auto* box = qobject_cast<QMessageBox*>(QApplication::activeModalWidget());
        if (!box || !QTest::qWaitForWindowExposed(box)) {
            whenABoxComesUp(shown);
            return;
        }
        shown(*box);
        box->button(QMessageBox::Close)->click();
    });
}

QString faultOfPlace(const QWidget& widget) {
    const QRect screen = widget.screen()->availableGeometry();
    if (screen.contains(widget.frameGeometry())) return {};
    const QSize size = widget.frameGeometry().size();
    return QString("%1 is not on the screen: %2x%3")
        .arg(widget.objectName(), QString::number(size.width()), QString::number(size.height()));
}

}  // namespace

class TestMenus : public QObject {
    Q_OBJECT

    static void none(const QStringList& faults) {
        for (const QString& fault : faults)
            qWarning("%s", qUtf8Printable(fault));
        QVERIFY(faults.isEmpty());
    }

    static void languages() {
        QTest::addColumn<QByteArray>("language");
        for (const char* language : {"Italiano", "English", "Espa\361ol", "Fran\347ais", "Deutsch"})
            QTest::newRow(QByteArray(language).left(2)) << QByteArray(language);
    }

  private Q_SLOTS:
    void theBoxOfAFailureIsSpokenAndWhole_data() { languages(); }
    void theBoxOfAFailureIsSpokenAndWhole() {
        QFETCH(QByteArray, language);
        const Windows windows(false, language);
        OffriNuovoAvvio({[] { return true; }, [] {}});
        sostituisciTermine([](int) {});
        ui::setUnattended(false);
        const auto back = qScopeGuard([] {
            ui::setUnattended(true);
            OffriNuovoAvvio({});
            sostituisciTermine({});
        });
        for (const Status& failure : failures) {
            QStringList faults;
            QString text;
            whenABoxComesUp([&](QMessageBox& box) {
                text = box.text();
                faults = faultsOfLayout(box) + faultsOfMnemonics(box) + QStringList{faultOfPlace(box)};
                faults.removeAll(QString());
                for (const auto* button : box.findChildren<QPushButton*>())
                    if (!button->text().contains('&')) faults << button->text() + " has no mnemonic";
                keepPicture(box,
                            QString("failure_%1_%2").arg(QTest::currentDataTag()).arg(int(failure.code())));
            });
            QVERIFY_EXCEPTION_THROWN(mostraEtermina(Fallimento(int(failure.code()), failure.text())),
                                     ProgrammaTerminato);
            none(faults);
            QVERIFY2(text.contains(QString::number(int(failure.code()))), qPrintable(text));
            QVERIFY2(text.contains(failure.text()), qPrintable(text));
            const QString italian = QString::fromStdString(failure.plainText());
            QCOMPARE(failure.text() == italian, language == "Italiano");
        }
    }

    void everyMenuIsOnTheScreen_data() { languages(); }
    void everyMenuIsOnTheScreen() {
        QFETCH(QByteArray, language);
        Windows windows(false, language);
        QStringList faults;
        int seen = 0;
        windows.each([&](QWidget& window, const QString& name) {
            for (auto* menu : window.findChildren<QMenu*>()) {
                if (menu->actions().isEmpty()) continue;
                ++seen;
                menu->popup(window.mapToGlobal(QPoint(0, 0)));
                QVERIFY(QTest::qWaitForWindowExposed(menu));
                if (const QString fault = faultOfPlace(*menu); !fault.isEmpty()) faults << name + '/' + fault;
                // more columns or an arrow at its end: the menu is taller than the screen
                if (menu->height() < menu->sizeHint().height() ||
                    menu->actionGeometry(menu->actions().constLast()).left() >
                        menu->actionGeometry(menu->actions().constFirst()).left())
                    faults << name + '/' + menu->objectName() + " is cut";
                keepPicture(*menu,
                            QString("%1_%2_%3").arg(name, menu->objectName(), QTest::currentDataTag()));
                menu->close();
            }
        });
        none(faults);
        QVERIFY2(seen >= 12, qPrintable(QString::number(seen)));
    }
};

TEST_CLASS(TestMenus);

}  // namespace menus_test

#include "menus_test.moc"
