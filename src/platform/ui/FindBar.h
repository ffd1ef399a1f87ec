// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <QToolBar>

class QCheckBox;
class QComboBox;
class QLabel;
class QLineEdit;

namespace ui {

class Announcer;

/// A bar with a field for what is looked for, where, and the buttons that go from one place to the next. It
/// is above a list and is hidden until it is opened. Return finds the next one, Shift+Return the previous
/// one, Esc closes.
class FindBar : public QToolBar {
    Q_OBJECT

  public:
    /// `places` are the entries of the list of where to look.
    FindBar(const QStringList& places, QWidget* parent);

    /// Shows the bar with its text selected, ready for another one.
    void present();
    void dismiss();

    QString text() const;
    /// Index among the places.
    int place() const;
    bool checkedOnly() const;

    /// The result of the search. A sentence that is final is said to assistive programs as well.
    void setAnswer(const QString& sentence, bool final);
    QString answer() const;

  Q_SIGNALS:
    /// Text, place or check box.
    void wantedChanged();
    void next();
    void previous();
    void dismissed();

  protected:
    void keyPressEvent(QKeyEvent* event) override;

  private:
    QLineEdit* m_text;
    QComboBox* m_places;
    QCheckBox* m_checkedOnly;
    QLabel* m_answer;
    Announcer* m_announcer;
};

}  // namespace ui
