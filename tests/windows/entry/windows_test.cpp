// SPDX-License-Identifier: GPL-3.0-or-later
// Every window with a user's settings: the four colour schemes, a larger font, longer texts; the screen's
// scale comes from outside (QT_SCALE_FACTOR). With VESTROLA_SHOTS set to a folder, pictures are left there.
#include <QHeaderView>
#include <QMainWindow>
#include <QMenu>
#include <QScopeGuard>
#include <QTabBar>
#include <QToolButton>

#include "modules/core/bGlobal.h"
#include "platform/ui/Contrast.h"
#include "platform/ui/TabStrip.h"
#include "support/LookChange.h"
#include "support/LookCheck.h"
#include "support/TestClass.h"
#include "windows/core/bTheme.h"
#include "windows/entry/every_window.h"
#include "windows/entry/Finestre.h"
#include "windows/shell/frmSplash.h"
#include "windows/store/griglia_stage.h"

namespace windows_test {

using namespace testing_support;

namespace {

constexpr int smallestScreen = 1024;  // points wide, for which the windows are made

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

    /// Those that stay: on a busy machine a layout may come some rounds of events later.
    static QStringList lastingFaultsOfLayout(QWidget& window) {
        QStringList faults;
        (void)QTest::qWaitFor([&] { return (faults = faultsOfLayout(window)).isEmpty(); });
        return faults;
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
            faults += lastingFaultsOfLayout(window);
            keepPicture(window, QString("%1_%2").arg(name, QTest::currentDataTag()).replace(' ', '_'));
        });
        none(faults);
    }

    void nothingIsCutOrCoveredAtTheSmallestSize_data() { languages(); }
    void nothingIsCutOrCoveredAtTheSmallestSize() {
        QFETCH(QByteArray, language);
        Windows windows(false, language);
        QStringList faults;
        windows.each([&](QWidget& window, const QString& name) {
            // Bars that have no room get an arrow, and tabs can be scrolled.
            if (qobject_cast<QMainWindow*>(&window)) return;
            window.resize(1, 1);
            Windows::settle();
            faults += lastingFaultsOfLayout(window);
            keepPicture(window, QString("%1_smallest_%2").arg(name, QTest::currentDataTag()));
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
            const QRect screen = window.screen()->availableGeometry();
            if (screen.width() < smallestScreen) return;
            // the main window is placed by the start, which is not played here
            const bool placed = name != "frmMain";
            QVERIFY2(placed ? screen.contains(window.geometry())
                            : window.minimumSizeHint().width() <= screen.width() &&
                                  window.minimumSizeHint().height() <= screen.height(),
                     qPrintable(name));
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

    void everyWindowReadsTheColourSchemeAnewAtItsLoad() {
        StoreStage stage;
        const auto reads = [](const char* name, const std::function<void()>& load) {
            coloriTema.fill(0x123456);
            load();
            for (const std::uint32_t colour : coloriTema)
                QVERIFY2(colour != 0x123456, name);
        };
        reads("frmMain", [] { finestre::Main(); });
        delete &finestre::Editor();
        reads("frmEditor", [] { finestre::Editor(); });
        reads("frmPropBody", [] { finestre::PropBody(); });
        reads("frmColor",
              [] { const frmColor colours(*finestre::Editor().DHTML, finestre::Editor().Commands()); });
        reads("frmSplash", [] { finestre::Splash(); });
        reads("frmInfoSu", [] { finestre::InfoSu(); });
        reads("frmAccount", [] { finestre::Account(); });
        reads("frmInvia", [] { finestre::Invia(); });
        reads("frmDestinatario", [] { finestre::Destinatario(); });
        reads("frmScelta", [] { finestre::Scelta(); });
        reads("frmImpTXT", [] { finestre::ImpTXT(); });
        reads("frmImpDB", [] { finestre::ImpDB(); });
        reads("frmProva", [] { finestre::Prova(); });
        reads("frmControlloMittente", [] { finestre::Controllo(); });
        reads("frmEsiti", [] { finestre::Esiti(); });
        reads("frmUltimaImportazione", [] { finestre::UltimaImportazione(); });
    }

    void headersAndTabsAreShadedInTwoColoursOfTheScheme() {
        sostituisciSchema("Metallic");
        const auto back = qScopeGuard([] { sostituisciSchema({}); });
        StoreStage stage;
        stage.window();
        const QColor light(243, 244, 250);
        const QColor dark(153, 151, 181);
        for (QWidget* window : {static_cast<QWidget*>(&finestre::Destinatario()),
                                static_cast<QWidget*>(&finestre::PropBody())}) {
            const QBrush ground = window->findChild<QWidget*>("pic")->palette().brush(QPalette::Window);
            QVERIFY(ground.gradient());
            QCOMPARE(ground.gradient()->stops(), (QGradientStops{{0, light}, {1, dark}}));
        }
        const QTabBar& tabs = *finestre::Editor().tb->tabBar();
        const QImage shown = finestre::Editor().tb->tabBar()->grab().toImage();
        const QRect tab = tabs.tabRect((tabs.currentIndex() + 1) % tabs.count());
        const auto isNear = [&](const QPoint& place, const QColor& wanted) {
            const QColor found = shown.pixelColor(place * shown.devicePixelRatio());
            constexpr int step = 10;  // of the shade, from one line to the next but one
            return qAbs(found.red() - wanted.red()) <= step && qAbs(found.green() - wanted.green()) <= step &&
                   qAbs(found.blue() - wanted.blue()) <= step;
        };
        QVERIFY(isNear(tab.topLeft() + QPoint(4, 2), light));
        QVERIFY(isNear(tab.bottomLeft() + QPoint(4, -2), dark));
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
