// SPDX-License-Identifier: GPL-3.0-or-later
#include <QJsonArray>
#include <QJsonObject>
#include <QUrl>

#include "platform/html/HtmlViewLive.h"

// Commands at the selection, and what the dialogs ask and change.

namespace {

QString sourceAddress(const QString& source) {
    return source.startsWith('/') ? QUrl::fromLocalFile(source).toString(QUrl::FullyEncoded) : source;
}

QJsonArray pairs(const HtmlView::Attributes& attributes) {
    QJsonArray list;
    for (const auto& [name, value] : attributes)
        list.append(QJsonArray{name, value});
    return list;
}

}  // namespace

Result<QVariant> HtmlView::execCommand(int command, const QString& value) {
    const auto answer = [](const auto& result) -> Result<QVariant> {
        if (!result.ok()) return result.status();
        return QVariant(result.value());
    };
    switch (command) {
        case GetFontName:
            return answer(m_live->fontName());
        case GetFontSize:
            return answer(m_live->freshState(QStringLiteral("fontSize")));
        case GetForeColor:
            return answer(m_live->freshState(QStringLiteral("foreColor")));
        case Paste:
            return answer(m_live->paste());
        case FindText:
        case Hyperlink:
        case Image:
        case Properties:
            return QVariant(false);
        default: {
            const Result<QVariant> done = m_live->change(QStringLiteral("commands.run"), {command, value});
            if (!done.ok()) return done.status();
            return QVariant(done.value().toBool());
        }
    }
}

HtmlView::CommandStatus HtmlView::queryStatus(int command) const {
    return m_live->status(command);
}

QString HtmlView::queryFontName() const {
    return m_live->shownFontName();
}

QString HtmlView::queryFontSize() const {
    return m_live->state.value(QStringLiteral("fontSize")).toString();
}

Result<bool> HtmlView::insertHTML(const QString& fragment) {
    return m_live->changeDone(QStringLiteral("insert.fragment"), {fragment});
}

Result<QString> HtmlView::selectedText() const {
    return m_live->askText(QStringLiteral("getSelection().toString()"));
}

Result<bool> HtmlView::find(const QString& text, unsigned flags) {
    const QJsonArray values{text, (flags & FindCaseSensitive) != 0, (flags & FindBackwards) != 0};
    if (text.isEmpty()) return false;
    const Result<QVariant> found = m_live->change(QStringLiteral("find"), values);
    if (!found.ok()) return found.status();
    return found.value().toBool();
}

Result<std::optional<HtmlView::ImageInfo>> HtmlView::selectedImage() const {
    const Result<QVariant> answer = m_live->ask(QStringLiteral("editor.insert.describeImage()"));
    if (!answer.ok()) return answer.status();
    const QVariantMap found = answer.value().toMap();
    if (found.isEmpty()) return std::optional<ImageInfo>();
    const auto text = [&found](const char* name) { return found.value(QLatin1String(name)).toString(); };
    return std::optional<ImageInfo>(
        ImageInfo{text("source"), text("alternativeText"), text("width"), text("height"), text("align")});
}

Result<bool> HtmlView::insertImage(const ImageInfo& image) {
    const QJsonObject info{{"source", sourceAddress(image.source)},
                           {"alternativeText", image.alternativeText},
                           {"width", image.width},
                           {"height", image.height},
                           {"align", image.align}};
    return m_live->changeDone(QStringLiteral("insert.image"), {info});
}

Result<HtmlView::LinkInfo> HtmlView::link() const {
    const Result<QVariant> answer = m_live->ask(QStringLiteral("editor.insert.describeLink()"));
    if (!answer.ok()) return answer.status();
    const QVariantMap found = answer.value().toMap();
    return LinkInfo{found.value(QStringLiteral("address")).toString(),
                    found.value(QStringLiteral("unsubscribes")).toBool()};
}

Result<bool> HtmlView::setLink(const LinkInfo& link, const QString& text) {
    return m_live->changeDone(QStringLiteral("insert.link"), {link.address, link.unsubscribes, text});
}

Result<QList<HtmlView::Element>> HtmlView::elementsAtCaret() const {
    const Result<QVariant> answer = m_live->ask(QStringLiteral("editor.elements.describe()"));
    if (!answer.ok()) return answer.status();
    QList<Element> elements;
    for (const QVariant& each : answer.value().toList()) {
        const QVariantMap described = each.toMap();
        Element element{described.value(QStringLiteral("tag")).toString(), {}};
        for (const QVariant& attribute : described.value(QStringLiteral("attributes")).toList()) {
            element.attributes.append(
                {attribute.toList().value(0).toString(), attribute.toList().value(1).toString()});
        }
        elements.append(element);
    }
    return elements;
}

Result<bool> HtmlView::setElementAttributes(int level, const Attributes& attributes) {
    return m_live->changeDone(QStringLiteral("elements.setAttributes"), {level, pairs(attributes)});
}

Result<QString> HtmlView::bodyAttribute(const QString& name) const {
    return m_live->askText(QStringLiteral("editor.page.attribute(%1)").arg(Live::arguments({name})));
}

Status HtmlView::setBodyAttribute(const QString& name, const QString& value) {
    return m_live->tell(QStringLiteral("editor.page.setAttribute(%1)").arg(Live::arguments({name, value})));
}

Status HtmlView::removeBodyAttribute(const QString& name) {
    return m_live->tell(QStringLiteral("editor.page.removeAttribute(%1)").arg(Live::arguments({name})));
}

Result<QString> HtmlView::pageColor(PageColor color) const {
    return m_live->askText(QStringLiteral("editor.page.color(%1)").arg(static_cast<int>(color)));
}

Status HtmlView::setPageColor(PageColor color, const QString& value) {
    return m_live->tell(
        QStringLiteral("editor.page.setColor(%1)").arg(Live::arguments({static_cast<int>(color), value})));
}
