// SPDX-License-Identifier: GPL-3.0-or-later
// Every text of ours in a window was looked up in the language in use.
#include <QAction>
#include <QComboBox>
#include <QFile>
#include <QGroupBox>
#include <QLabel>
#include <QLineEdit>
#include <QRegularExpression>
#include <QTranslator>
#include <QTreeWidget>

#include "support/TestClass.h"
#include "windows/entry/every_window.h"

namespace texts_test {

using namespace testing_support;

namespace {

/// Puts each text that is looked up between brackets, and remembers it.
class Brackets : public QTranslator {
  public:
    QString translate(const char* context, const char* source, const char* comment, int) const override {
        if (qstrcmp(context, "Vestrola") != 0 || (comment && *comment)) return {};
        m_asked.insert(QString::fromUtf8(source));
        return QStringLiteral("[[%1]]").arg(QString::fromUtf8(source));
    }
    bool isEmpty() const override { return false; }
    /// Whether a window contained a text before, or without, its look-up.
    bool misses(const QString& shown) const { return m_asked.contains(shown); }

  private:
    mutable QSet<QString> m_asked;
};

/// Texts that are the same in every language.
QStringList fixedTexts() {
    QFile file(TEST_DATA_DIR "/lang/fixed_texts.txt");
    if (!file.open(QIODevice::ReadOnly)) qFatal("no fixed texts");
    return QString::fromUtf8(file.readAll()).split('\n', Qt::SkipEmptyParts);
}

QStringList textsOf(const QAction& action) {
    return {action.text(), action.toolTip(), action.statusTip(), action.whatsThis()};
}

QStringList textsOf(const QWidget& widget) {
    QStringList texts{widget.windowTitle(), widget.toolTip(), widget.statusTip(), widget.accessibleName(),
                      widget.accessibleDescription()};
    if (const auto* label = qobject_cast<const QLabel*>(&widget)) texts << label->text();
    if (const auto* button = qobject_cast<const QAbstractButton*>(&widget)) texts << button->text();
    if (const auto* box = qobject_cast<const QGroupBox*>(&widget)) texts << box->title();
    if (const auto* line = qobject_cast<const QLineEdit*>(&widget)) texts << line->placeholderText();
    if (const auto* list = qobject_cast<const QComboBox*>(&widget))
        for (int i = 0; i < list->count(); ++i)
            texts << list->itemText(i);
    if (const auto* tree = qobject_cast<const QTreeWidget*>(&widget))
        for (int i = 0; i < tree->columnCount(); ++i)
            texts << tree->headerItem()->text(i);
    for (const QAction* action : widget.actions())
        texts += textsOf(*action);
    return texts;
}

bool looksItalian(const QString& text) {
    static const QRegularExpression italian(
        QStringLiteral("[àèìòù]|\\b(il|lo|gli|della|delle|dei|nel|nella|per "
                       "il|non|nessun|cartella|destinatari|messaggio)\\b"),
        QRegularExpression::CaseInsensitiveOption);
    return italian.match(text).hasMatch();
}

}  // namespace

class TestTexts : public QObject {
    Q_OBJECT

    Brackets m_brackets;

  private Q_SLOTS:
    void init() { QCoreApplication::installTranslator(&m_brackets); }
    void cleanup() { QCoreApplication::removeTranslator(&m_brackets); }

    void everyTextOfOurOwnIsLookedUp() {
        Windows windows(false, "English");
        // The last one is asked first.
        QCoreApplication::removeTranslator(&m_brackets);
        QCoreApplication::installTranslator(&m_brackets);
        const QStringList fixed = fixedTexts();
        QStringList faults;
        int lookedUp = 0;
        windows.each([&](QWidget& window, const QString& name) {
            QList<QWidget*> widgets = window.findChildren<QWidget*>();
            widgets << &window;
            for (const QWidget* widget : std::as_const(widgets)) {
                if (widget->window() != &window) continue;
                for (const QString& text : textsOf(*widget)) {
                    lookedUp += text.contains("[[");
                    if (text.isEmpty() || text.contains("[[") || fixed.contains(text)) continue;
                    if (m_brackets.misses(text) || looksItalian(text))
                        faults << name + ": " + widget->objectName() + ": " + text;
                }
            }
        });
        faults.removeDuplicates();
        for (const QString& fault : faults)
            qWarning("%s", qUtf8Printable(fault));
        QVERIFY(faults.isEmpty());
        QVERIFY(lookedUp > 100);
    }

    void unknownLanguagesAndNamesMeanItalian() {
        const QList<std::pair<QByteArray, QString>> codes{{"English", "en"},     {"Espa\361ol", "es"},
                                                          {"Fran\347ais", "fr"}, {"Deutsch", "de"},
                                                          {"Italiano", "it"},    {"Klingon", "it"}};
        const SampleFolder folder;
        for (const auto& [language, code] : codes) {
            writeTo(folder.path("LANG.lng"), installedTexts());
            writeTo(folder.path("LANGz.lng"), language + "\r\n");
            QCOMPARE(bLANG::CodiceLingua(), code);
        }
    }
};

TEST_CLASS(TestTexts);

}  // namespace texts_test

#include "texts_test.moc"
