// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/ViewFixture.h"
#include "support/BusyProcessor.h"
#include "support/TestClass.h"

namespace view_busy_test {

// A view on a machine that is busy with other things.
class ViewBusy : public QObject {
    Q_OBJECT

  private Q_SLOTS:
    void theTimeInWhichTheBrowserWaitsForAProcessorDoesNotCount() {
        Desk desk;
        const BusyProcessor busy(std::chrono::seconds(6));  // an answer may take five
        busy.take(rendererOf(desk.view));
        const QVariant answer = desk.view.evaluate(
            QStringLiteral("{ let sum = 0; for (let i = 0; i < 300000000; ++i) sum += i % 7; sum }"));
        QVERIFY(busy.over());
        QVERIFY(answer.toDouble() > 0);
        QCOMPARE(desk.body(), "<p>Gentile cliente</p>");
    }
};

TEST_CLASS(ViewBusy);

}  // namespace view_busy_test

#include "view_busy_test.moc"
