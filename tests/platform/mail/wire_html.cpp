// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/mail/wire_html.h"

#include <gumbo.h>

#include <cstring>
#include <QRegularExpression>

namespace wire {
namespace {

QByteArray attribute(const GumboElement& element, const char* name) {
    const GumboAttribute* found = gumbo_get_attribute(&element.attributes, name);
    return found ? QByteArray(found->value) : QByteArray();
}

void check(const GumboElement& meta, QStringList& complaints) {
    const QByteArray charset = attribute(meta, "charset");
    if (!charset.isEmpty() && charset.toLower() != "utf-8")
        complaints += "HTML that declares " + QString::fromUtf8(charset);
    if (attribute(meta, "http-equiv").toLower() != "content-type") return;
    static const QRegularExpression form("charset\\s*=\\s*[\"']?([^\\s\"';]+)",
                                         QRegularExpression::CaseInsensitiveOption);
    const auto match = form.match(QString::fromUtf8(attribute(meta, "content")));
    if (match.hasMatch() && match.captured(1).toLower() != "utf-8")
        complaints += "HTML that declares " + match.captured(1);
}

void walk(const GumboVector& nodes, QStringList& complaints) {
    for (unsigned i = 0; i < nodes.length; ++i) {
        const auto* node = static_cast<const GumboNode*>(nodes.data[i]);
        if (node->type != GUMBO_NODE_ELEMENT && node->type != GUMBO_NODE_TEMPLATE) continue;
        if (node->v.element.tag == GUMBO_TAG_META) check(node->v.element, complaints);
        walk(node->v.element.children, complaints);
    }
}

}  // namespace

void checkDeclarations(const QByteArray& html, QStringList& complaints) {
    GumboOutput* const output =
        gumbo_parse_with_options(&kGumboDefaultOptions, html.constData(), static_cast<size_t>(html.size()));
    walk(output->document->v.document.children, complaints);
    gumbo_destroy_output(&kGumboDefaultOptions, output);
}

}  // namespace wire
