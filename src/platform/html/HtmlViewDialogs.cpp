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

QVariant HtmlView::execCommand(int command, const QString& value) {
    switch (command) {
        case GetFontName:
            return m_live->freshState(QStringLiteral("fontName"));
        case GetFontSize:
            return m_live->freshState(QStringLiteral("fontSize"));
        case GetForeColor:
            return m_live->freshState(QStringLiteral("foreColor"));
        case Paste:
            return m_live->paste();
        case FindText:
        case Hyperlink:
        case Image:
        case Properties:
            return false;
        default:
            return m_live->runCommand(command, value);
    }
}

HtmlView::CommandStatus HtmlView::queryStatus(int command) const {
    return m_live->status(command);
}

bool HtmlView::insertHTML(const QString& fragment) {
    return m_live->mode == Mode::Design &&
           m_live->change(QStringLiteral("insert.fragment"), {fragment}).toBool();
}

QString HtmlView::selectedText() const {
    return m_live->ask(QStringLiteral("getSelection().toString()")).toString();
}

bool HtmlView::find(const QString& text, unsigned flags) {
    const QJsonArray values{text, (flags & FindCaseSensitive) != 0, (flags & FindBackwards) != 0};
    return !text.isEmpty() && m_live->change(QStringLiteral("find"), values).toBool();
}

std::optional<HtmlView::ImageInfo> HtmlView::selectedImage() const {
    const QVariantMap found = m_live->ask(QStringLiteral("editor.insert.describeImage()")).toMap();
    if (found.isEmpty()) return std::nullopt;
    const auto text = [&found](const char* name) { return found.value(QLatin1String(name)).toString(); };
    return ImageInfo{text("source"), text("alternativeText"), text("width"), text("height"), text("align")};
}

bool HtmlView::insertImage(const ImageInfo& image) {
    const QJsonObject info{{"source", sourceAddress(image.source)},
                           {"alternativeText", image.alternativeText},
                           {"width", image.width},
                           {"height", image.height},
                           {"align", image.align}};
    return m_live->mode == Mode::Design && m_live->change(QStringLiteral("insert.image"), {info}).toBool();
}

QString HtmlView::linkAddress() const {
    return m_live->ask(QStringLiteral("editor.insert.linkAddress()")).toString();
}

bool HtmlView::setLink(const QString& address, const QString& text) {
    return m_live->mode == Mode::Design &&
           m_live->change(QStringLiteral("insert.link"), {address, text}).toBool();
}

QList<HtmlView::Element> HtmlView::elementsAtCaret() const {
    QList<Element> elements;
    for (const QVariant& each : m_live->ask(QStringLiteral("editor.elements.describe()")).toList()) {
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

bool HtmlView::setElementAttributes(int level, const Attributes& attributes) {
    return m_live->mode == Mode::Design &&
           m_live->change(QStringLiteral("elements.setAttributes"), {level, pairs(attributes)}).toBool();
}

QString HtmlView::bodyAttribute(const QString& name) const {
    return m_live->ask(QStringLiteral("editor.page.attribute(%1)").arg(Live::arguments({name}))).toString();
}

void HtmlView::setBodyAttribute(const QString& name, const QString& value) {
    m_live->ask(QStringLiteral("editor.page.setAttribute(%1)").arg(Live::arguments({name, value})));
}

void HtmlView::removeBodyAttribute(const QString& name) {
    m_live->ask(QStringLiteral("editor.page.removeAttribute(%1)").arg(Live::arguments({name})));
}

QString HtmlView::pageColor(PageColor color) const {
    return m_live->ask(QStringLiteral("editor.page.color(%1)").arg(static_cast<int>(color))).toString();
}

void HtmlView::setPageColor(PageColor color, const QString& value) {
    m_live->ask(
        QStringLiteral("editor.page.setColor(%1)").arg(Live::arguments({static_cast<int>(color), value})));
}
