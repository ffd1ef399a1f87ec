// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/HtmlView.h"

#include <QFocusEvent>
#include <QVBoxLayout>

#include "platform/html/HtmlViewLive.h"

HtmlView::HtmlView(Mode mode, QWidget* parent)
    : QWidget(parent), m_live(std::make_unique<Live>(*this, mode)) {
    auto* box = new QVBoxLayout(this);
    box->setContentsMargins(0, 0, 0, 0);
    setFocusPolicy(Qt::StrongFocus);
}

HtmlView::~HtmlView() = default;

Result<QString> HtmlView::documentHTML() const {
    return m_live->text();
}

Status HtmlView::setDocumentHTML(const QString& html) {
    return m_live->setSource(html);
}

Status HtmlView::responds() const {
    return m_live->responds();
}

QString HtmlView::knownHTML() const {
    return m_live->knownText();
}

QWidget* HtmlView::inputWidget() const {
    return m_live->browser.widget != nullptr ? m_live->browser.widget->focusProxy() : nullptr;
}

bool HtmlView::isLive() const {
    return m_live->live;
}

void HtmlView::wake() {
    m_live->ensure();
}

QVariant HtmlView::evaluate(const QString& script) const {
    const Result<QVariant> value = m_live->ask(script);
    return value.ok() ? value.value() : QVariant();
}

void HtmlView::setLongWork(std::function<void(const std::function<void()>&)> run) {
    m_live->longWork = std::move(run);
}

void HtmlView::setDefaultFont(const QString& family) {
    m_live->setDefaultFont(family);
}

void HtmlView::setShowDetails(bool on) {
    m_live->showMarks(QStringLiteral("details"), on);
}

void HtmlView::setShowBorders(bool on) {
    m_live->showMarks(QStringLiteral("borders"), on);
}

void HtmlView::setPrintPrompt(std::function<bool(QPrinter&)> prompt) {
    m_live->printPrompt = std::move(prompt);
}

Result<bool> HtmlView::print(bool prompt, const QString& title) {
    return m_live->print(prompt, title);
}

void HtmlView::showEvent(QShowEvent* event) {
    QWidget::showEvent(event);
    m_live->begin();
}

void HtmlView::focusInEvent(QFocusEvent* event) {
    QWidget::focusInEvent(event);
    if (QWidget* input = inputWidget()) input->setFocus(event->reason());
}

void HtmlView::enterEvent(QEnterEvent* event) {
    QWidget::enterEvent(event);
    Q_EMIT pointerEntered();
}

bool HtmlView::eventFilter(QObject* watched, QEvent* event) {
    return (watched == inputWidget() && m_live->filter(*event)) || QWidget::eventFilter(watched, event);
}
