// SPDX-License-Identifier: GPL-3.0-or-later
// Sorting in parts, without a grid.
#include <algorithm>
#include <QTest>

#include "platform/ui/RowSorter.h"
#include "support/TestClass.h"

namespace row_sorter_test {

using ui::RowSorter;

class TestRowSorter : public QObject {
    Q_OBJECT

    static RowSorter sorterOf(const std::vector<std::string>& texts, bool descending = false) {
        return RowSorter(static_cast<uint32_t>(texts.size()), descending,
                         [&texts](uint32_t row, std::string& out) { out += texts[row]; });
    }
    static std::vector<std::string> sorted(const std::vector<std::string>& texts, bool descending = false) {
        RowSorter sorter = sorterOf(texts, descending);
        if (!sorter.step([] { return false; })) return {};
        std::vector<std::string> all;
        for (uint32_t place = 0; place < texts.size(); ++place)
            all.push_back(texts[sorter.row(place)]);
        return all;
    }

  private Q_SLOTS:
    void nothingAndOneRowAreSorted() {
        QCOMPARE(sorted({}), std::vector<std::string>());
        QCOMPARE(sorted({"a"}), std::vector<std::string>{"a"});
    }

    void textsAreComparedWhole() {
        const std::vector<std::string> wanted{"",          "a",         "ab", "abcdefgh",
                                              "abcdefgha", "abcdefghb", "b",  "\xC3"};
        std::vector<std::string> mixed = wanted;
        std::reverse(mixed.begin(), mixed.end());
        QCOMPARE(sorted(mixed), wanted);
        QCOMPARE(sorted(wanted, true), mixed);
    }

    void equalRowsKeepTheirOrderBothWays() {
        std::vector<std::string> texts;
        for (int i = 0; i < 5000; ++i)
            texts.push_back(i % 3 == 0 ? "uno" : "due");
        for (const bool descending : {false, true}) {
            RowSorter sorter = sorterOf(texts, descending);
            QVERIFY(sorter.step([] { return false; }));
            for (uint32_t place = 1; place < texts.size(); ++place)
                if (texts[sorter.row(place)] == texts[sorter.row(place - 1)])
                    QVERIFY(sorter.row(place) > sorter.row(place - 1));
        }
    }

    void partsAreAsGoodAsOneGo_data() {
        QTest::addColumn<int>("count");
        for (const int count : {1, 63, 64, 511, 512, 513, 1024, 1537, 20000})
            QTest::newRow(qPrintable(QString::number(count))) << count;
    }
    void partsAreAsGoodAsOneGo() {
        QFETCH(int, count);
        std::vector<std::string> texts;
        uint32_t number = 7;
        for (int i = 0; i < count; ++i) {
            number = number * 1664525 + 1013904223;
            texts.push_back("azienda " + std::to_string(number % 1000) + std::string(number % 50, 'x'));
        }
        std::vector<std::string> wanted = texts;
        std::stable_sort(wanted.begin(), wanted.end());
        RowSorter sorter = sorterOf(texts);
        int parts = 1;
        for (bool done = false; !done; ++parts)
            done = sorter.step([asked = 0]() mutable { return ++asked > 2; });
        QVERIFY(count < 1000 || parts > 10);
        for (uint32_t place = 0; place < texts.size(); ++place)
            QCOMPARE(texts[sorter.row(place)], wanted[place]);
    }

    void textsLongerThanABlockAreKept() {
        const std::string longText(3 << 20, 'b');
        QCOMPARE(sorted({"c", longText, "a"}), (std::vector<std::string>{"a", longText, "c"}));
    }
};

TEST_CLASS(TestRowSorter);

}  // namespace row_sorter_test

#include "row_sorter_test.moc"
