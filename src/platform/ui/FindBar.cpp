// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/ui/FindBar.h"

#include <QCheckBox>
#include <QComboBox>
#include <QHBoxLayout>
#include <QKeyEvent>
#include <QLabel>
#include <QLineEdit>
#include <QPainter>
#include <QStyle>
#include <QToolButton>

#include "platform/text/Words.h"
#include "platform/ui/Announcer.h"
#include "platform/ui/Controls.h"
#include "platform/ui/DialogForm.h"

namespace ui {

namespace {

QToolButton* barButton(const QString& name, const QString& caption, const QString& icon, const QString& tip) {
    auto* button = named(new QToolButton, name);
    button->setIcon(QIcon::fromTheme(icon));
    button->setText(caption);
    button->setToolTip(tip);
    button->setAccessibleName(caption);
    button->setAccessibleDescription(tip);
    button->setAutoRaise(true);
    button->setFocusPolicy(Qt::TabFocus);
    return button;
}

/// A sentence that takes the room that is left. A bar hides what has no room as it is.
class AnswerLabel : public QLabel {
  public:
    using QLabel::QLabel;
    QSize sizeHint() const override { return {0, QLabel::sizeHint().height()}; }
    QSize minimumSizeHint() const override { return sizeHint(); }

  protected:
    void paintEvent(QPaintEvent*) override {
        QPainter painter(this);
        style()->drawItemText(
            &painter, contentsRect(), Qt::AlignVCenter | Qt::AlignLeft, palette(), isEnabled(),
            fontMetrics().elidedText(text(), Qt::ElideRight, contentsRect().width()), foregroundRole());
    }
};

}  // namespace

FindBar::FindBar(const QStringList& places, QWidget* parent)
    : QToolBar(Words::tr("Trova"), parent),
      m_text(textField("txtTrova", this)),
      m_places(choiceField("cmbDove", places, this)),
      m_checkedOnly(named(new QCheckBox(Words::tr("Solo sele&zionati"), this), "chkSoloSelezionati")),
      m_answer(named(new AnswerLabel(this), "lblTrovati")),
      m_announcer(new Announcer(this)) {
    setObjectName("Trova");
    setAccessibleName(Words::tr("Trova"));
    setMovable(false);
    auto* label = new QLabel(Words::tr("T&rova:"), this);
    label->setBuddy(m_text);
    m_text->setAccessibleName(Words::tr("Trova"));
    m_text->setMinimumWidth(scaledToFont(*this, 140));
    m_text->setMaximumWidth(scaledToFont(*this, 260));
    m_places->setAccessibleName(Words::tr("Dove cercare"));
    m_answer->setSizePolicy(QSizePolicy::Expanding, QSizePolicy::Preferred);
    auto* previousButton = barButton("cmdTrovaPrecedente", Words::tr("Precedente"), "go-up",
                                     Words::tr("Trova precedente (Maiusc+Invio)"));
    auto* nextButton = barButton("cmdTrovaSuccessivo", Words::tr("Successivo"), "go-down",
                                 Words::tr("Trova successivo (Invio)"));
    auto* closeButton =
        barButton("cmdChiudiTrova", Words::tr("Chiudi"), "window-close", Words::tr("Chiudi la barra (Esc)"));
    layout()->setSpacing(controlSpacing / 2);
    for (QWidget* item : std::initializer_list<QWidget*>{label, m_text, previousButton, nextButton, m_places,
                                                         m_checkedOnly, m_answer, closeButton})
        addWidget(item);
    connect(m_text, &QLineEdit::textChanged, this, &FindBar::wantedChanged);
    connect(m_places, &QComboBox::currentIndexChanged, this, &FindBar::wantedChanged);
    connect(m_checkedOnly, &QCheckBox::toggled, this, &FindBar::wantedChanged);
    connect(nextButton, &QToolButton::clicked, this, &FindBar::next);
    connect(previousButton, &QToolButton::clicked, this, &FindBar::previous);
    connect(closeButton, &QToolButton::clicked, this, &FindBar::dismiss);
    hide();
}

void FindBar::present() {
    m_text->setClearButtonEnabled(true);
    show();
    m_text->setFocus(Qt::ShortcutFocusReason);
    m_text->selectAll();
}

void FindBar::dismiss() {
    hide();
    Q_EMIT dismissed();
}

QString FindBar::text() const {
    return m_text->text();
}

int FindBar::place() const {
    return m_places->currentIndex();
}

bool FindBar::checkedOnly() const {
    return m_checkedOnly->isChecked();
}

void FindBar::setAnswer(const QString& sentence, bool final) {
    if (m_answer->text() == sentence) return;
    m_answer->setText(sentence);
    m_answer->setToolTip(sentence);
    if (final && !sentence.isEmpty()) m_announcer->say(sentence);
}

QString FindBar::answer() const {
    return m_answer->text();
}

void FindBar::keyPressEvent(QKeyEvent* event) {
    const bool enter = event->key() == Qt::Key_Return || event->key() == Qt::Key_Enter;
    if (event->key() == Qt::Key_Escape) {
        dismiss();
    } else if (enter && m_text->hasFocus()) {
        if (event->modifiers() & Qt::ShiftModifier)
            Q_EMIT previous();
        else
            Q_EMIT next();
    } else {
        QToolBar::keyPressEvent(event);
    }
}

}  // namespace ui
