// Every window as a user may have it: with the four colour schemes, a larger font, longer texts; the screen's
// scale comes from outside (QT_SCALE_FACTOR). With VESTROLA_SHOTS set to a folder, pictures are left there.
#include <functional>
#include <QFile>
#include <QHeaderView>
#include <QMenu>
#include <QScopeGuard>
#include <QScreen>
#include <QToolButton>

#include "modules/import/UltimaImportazione.h"
#include "platform/ui/Contrast.h"
#include "platform/ui/Controls.h"
#include "platform/ui/ElementDialog.h"
#include "platform/ui/FindDialog.h"
#include "platform/ui/ImageDialog.h"
#include "platform/ui/LinkDialog.h"
#include "support/LookChange.h"
#include "support/LookCheck.h"
#include "support/TestClass.h"
#include "windows/accounts/frmAccount.h"
#include "windows/core/bTheme.h"
#include "windows/entry/Finestre.h"
#include "windows/import/frmImpDB.h"
#include "windows/import/frmImpTXT.h"
#include "windows/import/frmScelta.h"
#include "windows/message/frmColor.h"
#include "windows/message/frmEditor.h"
#include "windows/message/frmPropBody.h"
#include "windows/send/frmInvia.h"
#include "windows/shell/frmInfoSu.h"
#include "windows/shell/frmSplash.h"
#include "windows/store/griglia_stage.h"
#include "windows/strumenti/frmControlloMittente.h"
#include "windows/strumenti/frmEsiti.h"
#include "windows/strumenti/frmProva.h"
#include "windows/strumenti/frmUltimaImportazione.h"

namespace windows_test {

using namespace testing_support;

namespace {

void writeTo(const QString& path, const QByteArray& content) {
    QFile file(path);
    if (!file.open(QIODevice::WriteOnly) || file.write(content) != content.size())
        qFatal("cannot write %s", qUtf8Printable(path));
}

QByteArray installedTexts() {
    QFile file(TEST_DATA_DIR "/../../assets/templates/LANG.lng");
    if (!file.open(QIODevice::ReadOnly)) qFatal("no language file");
    return file.readAll();
}

/// The windows over a program folder with groups, recipients and an account, in the installed texts.
struct Windows {
    StoreStage stage;
    bool stretched;

    explicit Windows(bool longTexts = false, const QByteArray& language = "Italiano") : stretched(longTexts) {
        writeTo(stage.folder.path("LANG.lng"),
                stretched ? withLongerTexts(installedTexts()) : installedTexts());
        writeTo(stage.folder.path("LANGz.lng"), language + "\r\n");
        stage.folder.addAccount(SampleFolder::loopbackAccount(25));
        stage.addGroup(1, "Rivenditori");
        for (const char* name : {"Alfa S.r.l.", "Beta S.p.A.", "Gamma S.n.c."})
            stage.addRecipient(1, name, "info@esempio.it");
        stage.clickNode("K1");
    }

    /// The windows of the menu "Strumenti", which are made for screens of at least 800 points.
    static void eachTool(const std::function<void(QWidget&, const QString&)>& show) {
        if (finestre::Main().screen()->availableSize().width() < 800) return;
        finestre::Prova().Carica();
        show(finestre::Prova(), "frmProva");
        finestre::Controllo().CaricaDati();
        show(finestre::Controllo(), "frmControlloMittente");
        finestre::Esiti().Carica();
        show(finestre::Esiti(), "frmEsiti");
        finestre::UltimaImportazione().Mostra(ultimaImportazione());
        show(finestre::UltimaImportazione(), "frmUltimaImportazione");
    }

    /// Shows each window in its turn; `look` sees it.
    void each(const std::function<void(QWidget&, const QString&)>& look) {
        const auto show = [&](QWidget& window, const QString& name) {
            window.show();
            QVERIFY(QTest::qWaitForWindowExposed(&window));
            QTest::qWait(20);
            look(window, name);
            window.hide();
        };
        const auto showOwn = [&](QWidget& window, const QString& name) {
            // Their texts are in no language file.
            if (stretched) makeTextsLonger(window);
            ui::openAtLeast(window, window.size());
            show(window, name);
        };
        look(finestre::Main(), "frmMain");
        finestre::Invia().SetPrgBar();
        finestre::Invia().CaricaDati();
        show(finestre::Invia(), "frmInvia");
        show(finestre::Account(), "frmAccount");
        finestre::Destinatario().PulisciCampi();
        finestre::Destinatario().lbl->setText("Aggiungi destinatario");
        show(finestre::Destinatario(), "frmDestinatario");
        show(finestre::ImpTXT(), "frmImpTXT");
        show(finestre::ImpDB(), "frmImpDB");
        show(finestre::Scelta(), "frmScelta");
        show(finestre::InfoSu(), "frmInfoSu");
        show(finestre::Splash(), "frmSplash");
        show(finestre::PropBody(), "frmPropBody");
        eachTool(showOwn);
        finestre::Editor().NuovoMessaggio();
        show(finestre::Editor(), "frmEditor");
        frmColor colours(*finestre::Editor().DHTML, finestre::Editor().Commands());
        showOwn(colours, "frmColor");
        ui::FindDialog find(&finestre::Main(), [](const QString&, bool, bool) { return false; });
        showOwn(find, "FindDialog");
        ui::LinkDialog link(&finestre::Main(), {"https://www.esempio.it"}, true,
                            {{"Ragione sociale", ":::rgs:::"}});
        showOwn(link, "LinkDialog");
        ui::ImageDialog image(&finestre::Main(), {});
        showOwn(image, "ImageDialog");
        ui::ElementDialog element(&finestre::Main(), {{"td", {{"width", "120"}}}, {"table", {}}});
        showOwn(element, "ElementDialog");
    }
};

/// The installed languages besides Italian, as the file names them.
const QList<std::pair<const char*, const char*>> otherLanguages{
    {"English", "English"}, {"Spanish", "Espa\361ol"}, {"French", "Fran\347ais"}, {"German", "Deutsch"}};

class LargerFont {
  public:
    explicit LargerFont(double factor) : m_before(QApplication::font()) {
        QFont font = m_before;
        font.setPointSizeF(m_before.pointSizeF() * factor);
        QApplication::setFont(font);
    }
    ~LargerFont() { QApplication::setFont(m_before); }

  private:
    QFont m_before;
};

}  // namespace

class TestWindows : public QObject {
    Q_OBJECT

    static void none(const QStringList& faults) {
        for (const QString& fault : faults)
            qWarning("%s", qUtf8Printable(fault));
        QVERIFY(faults.isEmpty());
    }

    static void schemes() {
        QTest::addColumn<QString>("scheme");
        for (const char* scheme : {"Classic", "NormalColor", "Metallic", "HomeStead"})
            QTest::newRow(scheme) << scheme;
    }

    static void languages() {
        QTest::addColumn<QByteArray>("language");
        QTest::newRow("Italian") << QByteArray("Italiano");
        for (const auto& [name, language] : otherLanguages)
            QTest::newRow(name) << QByteArray(language);
    }

  private Q_SLOTS:
    void nothingIsCutOrCovered_data() {
        QTest::addColumn<double>("font");
        QTest::addColumn<bool>("longTexts");
        QTest::addColumn<QByteArray>("language");
        const QByteArray italian = "Italiano";
        QTest::newRow("as designed") << 1.0 << false << italian;
        QTest::newRow("texts a third longer") << 1.0 << true << italian;
        QTest::newRow("font 40 percent larger") << 1.4 << false << italian;
        QTest::newRow("larger font and longer texts") << 1.4 << true << italian;
        for (const auto& [name, language] : otherLanguages)
            QTest::newRow(name) << 1.0 << false << QByteArray(language);
    }
    void nothingIsCutOrCovered() {
        QFETCH(double, font);
        QFETCH(bool, longTexts);
        QFETCH(QByteArray, language);
        const LargerFont larger(font);
        Windows windows(longTexts, language);
        QStringList faults;
        windows.each([&](QWidget& window, const QString& name) {
            faults += faultsOfLayout(window);
            keepPicture(window, QString("%1_%2").arg(name, QTest::currentDataTag()).replace(' ', '_'));
        });
        none(faults);
    }

    void mnemonicsOfAMenuOrAWindowAreDistinct_data() { languages(); }
    void mnemonicsOfAMenuOrAWindowAreDistinct() {
        QFETCH(QByteArray, language);
        Windows windows(false, language);
        QStringList faults;
        windows.each([&](QWidget& window, const QString&) { faults += faultsOfMnemonics(window); });
        none(faults);
    }

    void headsOfTheColumnsFitTheirFirstWidths_data() { languages(); }
    void headsOfTheColumnsFitTheirFirstWidths() {
        QFETCH(QByteArray, language);
        Windows windows(false, language);
        const QHeaderView& heads = *windows.stage.grd().horizontalHeader();
        for (int column = 0; column < heads.count(); ++column) {
            if (heads.isSectionHidden(column)) continue;
            const QString text = windows.stage.grd().TextMatrix(0, column);
            QVERIFY2(heads.fontMetrics().horizontalAdvance(text) + 12 <= heads.sectionSize(column),
                     qPrintable(text));
        }
    }

    void windowsFitASmallScreen_data() { languages(); }
    void windowsFitASmallScreen() {
        QFETCH(QByteArray, language);
        Windows windows(false, language);
        windows.each([](QWidget& window, const QString& name) {
            QVERIFY2(window.width() <= 1280 && window.height() <= 700, qPrintable(name));
        });
    }

    void controlsAreNamedAndLargeEnoughToHit() {
        Windows windows;
        QStringList faults;
        windows.each([&](QWidget& window, const QString&) { faults += faultsOfAccess(window); });
        none(faults);
    }

    void dialogsAreReadInTheOrderOfTheTabKey() {
        Windows windows;
        windows.each([](QWidget& window, const QString& name) {
            if (qobject_cast<QDialog*>(&window)) QCOMPARE(orderRead(window), orderOfTab(window));
            QVERIFY2(!orderOfTab(window).isEmpty() || name == "frmSplash", qPrintable(name));
        });
    }

    void focusAndMarksStandOutInEveryScheme_data() { schemes(); }
    void focusAndMarksStandOutInEveryScheme() {
        QFETCH(QString, scheme);
        sostituisciSchema(scheme);
        const auto back = qScopeGuard([] { sostituisciSchema({}); });
        Windows windows;
        QStringList faults;
        windows.each([&](QWidget& window, const QString&) {
            QApplication::setActiveWindow(&window);
            faults += faultsOfFocus(window);
            faults += faultsOfMarks(window);
        });
        none(faults);
    }

    void aDarkDesktopChangesNothing() {
        const auto handOutAnew = [] {
            for (const char* scheme : {"Metallic", ""}) {
                sostituisciSchema(scheme);
                RilevaTema(nullptr);
            }
        };
        const auto back = qScopeGuard(handOutAnew);
        QStringList looks[2];
        for (const bool dark : {false, true}) {
            QApplication::setPalette(dark ? QPalette(QColor(30, 30, 30), QColor(20, 20, 20)) : QPalette());
            handOutAnew();
            Windows windows;
            windows.each([&](QWidget& window, const QString& name) {
                QVERIFY2(faultsOfContrast(window).isEmpty(), qPrintable(name));
                looks[dark] << name + window.palette().color(QPalette::Window).name() +
                                   window.palette().color(QPalette::WindowText).name() +
                                   window.palette().color(QPalette::Base).name();
            });
        }
        QCOMPARE(looks[1], looks[0]);
    }

    void textsStandOutInEveryScheme_data() {
        QTest::addColumn<QString>("scheme");
        QTest::addColumn<bool>("high");
        for (const char* scheme : {"Classic", "NormalColor", "Metallic", "HomeStead"}) {
            QTest::newRow(scheme) << scheme << false;
            QTest::addRow("%s, high contrast", scheme) << scheme << true;
        }
    }
    void textsStandOutInEveryScheme() {
        QFETCH(QString, scheme);
        QFETCH(bool, high);
        sostituisciSchema(scheme);
        ui::setHighContrast(high);
        const auto back = qScopeGuard([] {
            sostituisciSchema({});
            ui::setHighContrast(false);
        });
        Windows windows;
        QStringList faults;
        windows.each([&](QWidget& window, const QString& name) {
            faults += faultsOfContrast(window);
            keepPicture(window, name + '_' + scheme + (high ? "_alto" : ""));
        });
        none(faults);
    }
};

TEST_CLASS(TestWindows);

}  // namespace windows_test

#include "windows_test.moc"
