// SPDX-License-Identifier: GPL-3.0-or-later
// The program's style: measures of rows and buttons, and what a list shows of a text that is too long for it.
#include <QComboBox>
#include <QDialogButtonBox>
#include <QListWidget>
#include <QPushButton>
#include <QTest>
#include <QTreeWidget>

#include "platform/ui/Controls.h"
#include "platform/ui/Desktop.h"
#include "support/TestClass.h"

namespace style_test {

class TestStyle : public QObject {
    Q_OBJECT

    /// What a list of this width shows of a text.
    static QImage shown(const QString& text) {
        QComboBox list;
        list.addItem(text);
        list.setFixedSize(120, ui::fieldHeight);
        list.show();
        return list.grab().toImage();
    }

  private Q_SLOTS:
    void rowsAreHighEnoughToBeHit() {
        QListWidget list;
        list.addItem("una");
        QVERIFY(list.visualItemRect(list.item(0)).height() >= ui::rowHeight);
        QTreeWidget tree;
        tree.setUniformRowHeights(true);
        auto* row = new QTreeWidgetItem(&tree, {"una"});
        tree.show();
        QVERIFY(tree.visualItemRect(row).height() >= ui::rowHeight);
    }

    void buttonsOfABoxAreAsLargeAsTheOthers() {
        QDialogButtonBox box(QDialogButtonBox::Yes | QDialogButtonBox::No);
        box.show();
        for (const auto* button : box.buttons()) {
            QVERIFY(button->width() >= ui::buttonWidth);
            QVERIFY(button->height() >= ui::buttonHeight);
        }
    }

    void aChosenTextThatIsTooLongEndsInDots() {
        const QString name = "La bottega di Città di Castello [notizie@bottega.example]";
        const QImage cut = shown(name);
        QStringList shorter;
        for (int length = 1; length < name.size(); ++length)
            if (shown(name.left(length) + u'…') == cut && shown(name.left(length)) != cut)
                shorter << name.left(length);
        QVERIFY2(!shorter.isEmpty(), "the text is cut without dots");
        QVERIFY(shown("breve") != shown("breve…"));
    }

    void aCommandButtonIsNeverNarrowerThanItsCaption() {
        QWidget window;
        QPushButton* button = ui::commandButton("breve", "cmd", &window);
        QCOMPARE(button->minimumSizeHint().width(), ui::buttonWidth);
        button->setText("Deseleziona gli indirizzi inesistenti di questo invio");
        QVERIFY(button->minimumSizeHint().width() > button->fontMetrics().horizontalAdvance(button->text()));
        QVERIFY(button->minimumWidth() <= 0);
    }
};

TEST_CLASS_WITH(TestStyle, ui::setUpDesktop);

}  // namespace style_test

#include "style_test.moc"
