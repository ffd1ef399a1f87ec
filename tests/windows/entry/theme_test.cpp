// SPDX-License-Identifier: GPL-3.0-or-later
#include <algorithm>
#include <QFile>
#include <QScopeGuard>
#include <QTest>

#include "modules/core/bGlobal.h"
#include "platform/ui/Contrast.h"
#include "support/ColorContrast.h"
#include "support/TestClass.h"
#include "windows/core/bTheme.h"

namespace theme_test {

using testing_support::contrast;

namespace {

constexpr std::uint32_t rgb(int red, int green, int blue) {
    return static_cast<std::uint32_t>(red | (green << 8) | (blue << 16));
}

}  // namespace

class TestTheme : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void init() { coloriTema.fill(0); }

    void withoutAThemeServiceTheSchemeIsClassic() {
        QWidget window;
        QCOMPARE(RilevaTema(&window), "Classic");
        QCOMPARE(coloriTema[0], rgb(212, 208, 200));
        QCOMPARE(coloriTema[13], rgb(10, 36, 106));
        QCOMPARE(coloriTema[24], rgb(128, 128, 128));
        QCOMPARE(QApplication::palette().color(QPalette::Window), QColor(212, 208, 200));
    }

    void eachSchemeFillsAllEntries() {
        const QStringList names{"Classic", "NormalColor", "Metallic", "HomeStead"};
        QFile table(TEST_DATA_DIR "/theme/schemes.tsv");
        QVERIFY(table.open(QIODevice::ReadOnly));
        int rows = 0;
        for (; !table.atEnd(); ++rows) {
            const QStringList cells = QString::fromUtf8(table.readLine()).trimmed().split('\t');
            QCOMPARE(cells.size(), 5);
            for (int scheme = 0; scheme < 4; ++scheme) {
                const QStringList parts = cells[scheme + 1].split(',');
                ImpostaColoriTema(names[scheme]);
                QCOMPARE(coloriTema[cells[0].toUInt()],
                         rgb(parts[0].toInt(), parts[1].toInt(), parts[2].toInt()));
            }
        }
        QCOMPARE(rows, 25);
    }

    void beforeTheFirstCallEveryEntryIsBlack() {
        QCOMPARE(std::count(coloriTema.begin(), coloriTema.end(), 0u), 25);
        QCOMPARE(coloreTema(0), QColor(0, 0, 0));
    }

    void unknownSchemeLeavesThePaletteAsItWas() {
        ImpostaColoriTema("Neon");
        QCOMPARE(coloriTema[0], 0u);
        ImpostaColoriTema("Metallic");
        ImpostaColoriTema("metallic");
        QCOMPARE(coloriTema[0], rgb(243, 243, 247));
    }

    void aStyleOfAnotherSchemeLeavesThePaletteAsTheSchemeBeforeHadIt() {
        const auto back = qScopeGuard([] { sostituisciSchema({}); });
        QWidget window;
        sostituisciSchema("Royale");
        QCOMPARE(RilevaTema(&window), "Royale");
        QCOMPARE(std::count(coloriTema.begin(), coloriTema.end(), 0u), 25);
        sostituisciSchema("HomeStead");
        QCOMPARE(RilevaTema(&window), "HomeStead");
        sostituisciSchema("Royale");
        QCOMPARE(RilevaTema(&window), "Royale");
        QCOMPARE(coloriTema[0], rgb(242, 241, 228));
        QCOMPARE(coloriTema[24], rgb(151, 160, 123));
    }

    void mixingWithWhiteAtQuotaTenIsTheGridsBackground() {
        QCOMPARE(MescolaColori(rgb(212, 208, 200), rgb(255, 255, 255), 10), rgb(253, 253, 253));
    }

    void quotaRunsFromTheSecondColourToTheFirst() {
        const auto one = rgb(10, 20, 30);
        const auto two = rgb(200, 100, 0);
        QCOMPARE(MescolaColori(one, two, 0), two);
        QCOMPARE(MescolaColori(one, two, 255), one);
    }

    void plainColoursStandForThemselvesAndSystemColoursForTheDesktops() {
        QApplication::setPalette(QPalette(QColor(10, 20, 30), QColor(40, 50, 60)));
        QCOMPARE(TraduciColore(rgb(1, 2, 3)), rgb(1, 2, 3));
        const auto of = [](QPalette::ColorRole role) {
            const QColor color = QApplication::palette().color(role);
            return rgb(color.red(), color.green(), color.blue());
        };
        QCOMPARE(TraduciColore(0x80000005), of(QPalette::Base));
        QCOMPARE(TraduciColore(0x8000000f), of(QPalette::Button));
        QCOMPARE(TraduciColore(0x8000000d), of(QPalette::Highlight));
        QCOMPARE(MescolaColori(0x80000008, 0, 255), of(QPalette::Text));
    }

    void whatIsNoColourTranslatesToMinusOne() {
        QCOMPARE(TraduciColore(0x8000001f), 0xffffffffu);
        QCOMPARE(TraduciColore(0x80010000), 0xffffffffu);
        QCOMPARE(TraduciColore(0x03000000), 0xffffffffu);
        QCOMPARE(TraduciColore(0xffffffff), 0xffffffffu);
    }

    void mixingTakesTheNearestWholeNumber() {
        QCOMPARE(MescolaColori(rgb(1, 3, 255), rgb(2, 0, 0), 127), rgb(2, 1, 127));
        QCOMPARE(MescolaColori(rgb(1, 3, 255), rgb(2, 0, 0), 128), rgb(1, 2, 128));
    }

    void highContrastDarkensLinesAndTextsThatStandBack() {
        QWidget window;
        RilevaTema(&window);
        const QColor line = tavolozzaTema().color(QPalette::Mid);
        ui::setHighContrast(true);
        RilevaTema(&window);
        const QPalette palette = QApplication::palette();
        ui::setHighContrast(false);
        RilevaTema(&window);
        const QColor ground = palette.color(QPalette::Window);
        QCOMPARE(ground, QColor(212, 208, 200));
        for (const auto role : {QPalette::Mid, QPalette::Dark})
            QVERIFY(contrast(palette.color(role), ground) >= 3);
        QVERIFY(contrast(palette.color(QPalette::Disabled, QPalette::WindowText), ground) >= 4.5);
        QCOMPARE(QApplication::palette().color(QPalette::Mid), line);
    }

    void textsCanBeReadInEveryScheme_data() {
        QTest::addColumn<QString>("scheme");
        for (const char* scheme : {"Classic", "NormalColor", "Metallic", "HomeStead"})
            QTest::newRow(scheme) << scheme;
    }
    void textsCanBeReadInEveryScheme() {
        QFETCH(QString, scheme);
        ImpostaColoriTema(scheme);
        const QPalette palette = tavolozzaTema();
        const auto of = [&](QPalette::ColorGroup group, QPalette::ColorRole text,
                            QPalette::ColorRole ground) {
            return contrast(palette.color(group, text), palette.color(group, ground));
        };
        QVERIFY(of(QPalette::Active, QPalette::WindowText, QPalette::Window) >= 13.5);
        QVERIFY(of(QPalette::Active, QPalette::ButtonText, QPalette::Button) >= 13.5);
        QVERIFY(of(QPalette::Active, QPalette::HighlightedText, QPalette::Highlight) >= 7);
        QVERIFY(of(QPalette::Inactive, QPalette::HighlightedText, QPalette::Highlight) >= 4.5);
        QVERIFY(of(QPalette::Disabled, QPalette::WindowText, QPalette::Window) >= 3);
        QVERIFY(contrast(palette.color(QPalette::Highlight), palette.color(QPalette::Window)) >= 6.5);
    }
};

TEST_CLASS(TestTheme);

}  // namespace theme_test

#include "theme_test.moc"
