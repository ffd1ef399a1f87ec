#include <QTest>

#include "core/bGlobal.h"
#include "shell/bTheme.h"

namespace {

constexpr std::uint32_t rgb(int red, int green, int blue) {
    return static_cast<std::uint32_t>(red | (green << 8) | (blue << 16));
}

double luminance(const QColor& color) {
    const auto part = [](double value) {
        return value <= 0.03928 ? value / 12.92 : std::pow((value + 0.055) / 1.055, 2.4);
    };
    return 0.2126 * part(color.redF()) + 0.7152 * part(color.greenF()) + 0.0722 * part(color.blueF());
}

double contrast(const QColor& a, const QColor& b) {
    const double one = luminance(a) + 0.05;
    const double two = luminance(b) + 0.05;
    return std::max(one, two) / std::min(one, two);
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

    void eachSchemeFillsAllEntries_data() {
        QTest::addColumn<QString>("scheme");
        QTest::addColumn<quint32>("first");
        QTest::addColumn<quint32>("entry9");
        QTest::addColumn<quint32>("last");
        QTest::newRow("Classic") << "Classic" << rgb(212, 208, 200) << rgb(245, 244, 242)
                                 << rgb(128, 128, 128);
        QTest::newRow("NormalColor") << "NormalColor" << rgb(196, 218, 250) << rgb(221, 236, 254)
                                     << rgb(144, 153, 174);
        QTest::newRow("Metallic") << "Metallic" << rgb(243, 243, 247) << rgb(243, 244, 250)
                                  << rgb(155, 154, 179);
        QTest::newRow("HomeStead") << "HomeStead" << rgb(242, 241, 228) << rgb(244, 247, 222)
                                   << rgb(151, 160, 123);
    }
    void eachSchemeFillsAllEntries() {
        QFETCH(QString, scheme);
        QFETCH(quint32, first);
        QFETCH(quint32, entry9);
        QFETCH(quint32, last);
        ImpostaColoriTema(scheme);
        QCOMPARE(coloriTema[0], first);
        QCOMPARE(coloriTema[1], rgb(255, 255, 255));
        QCOMPARE(coloriTema[9], entry9);
        QCOMPARE(coloriTema[20], 0u);
        QCOMPARE(coloriTema[24], last);
    }

    void unknownSchemeLeavesThePaletteAsItWas() {
        ImpostaColoriTema("Neon");
        QCOMPARE(coloriTema[0], 0u);
        ImpostaColoriTema("Metallic");
        ImpostaColoriTema("metallic");
        QCOMPARE(coloriTema[0], rgb(243, 243, 247));
    }

    void mixingWithWhiteAtQuotaTenGivesTheGridsBackground() {
        QCOMPARE(MescolaColori(rgb(212, 208, 200), rgb(255, 255, 255), 10), rgb(253, 253, 253));
    }

    void quotaRunsFromTheSecondColourToTheFirst() {
        const auto one = rgb(10, 20, 30);
        const auto two = rgb(200, 100, 0);
        QCOMPARE(MescolaColori(one, two, 0), two);
        QCOMPARE(MescolaColori(one, two, 255), one);
    }

    void mixingTakesTheNearestWholeNumber() {
        QCOMPARE(MescolaColori(rgb(1, 3, 255), rgb(2, 0, 0), 127), rgb(2, 1, 127));
        QCOMPARE(MescolaColori(rgb(1, 3, 255), rgb(2, 0, 0), 128), rgb(1, 2, 128));
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

QTEST_MAIN(TestTheme)
#include "test_gui_theme.moc"
