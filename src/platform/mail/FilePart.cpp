#include "platform/mail/FilePart.h"

#include <gmime/gmime.h>

#include <memory>
#include <QMimeDatabase>

#include "platform/mail/HeaderText.h"

namespace mail {
namespace {

constexpr qsizetype fallbackLimit = 60;

template <class T>
struct Unref {
    void operator()(T* object) const { g_object_unref(object); }
};
template <class T>
using Ref = std::unique_ptr<T, Unref<T>>;

struct FreeOptions {
    void operator()(GMimeFormatOptions* options) const { g_mime_format_options_free(options); }
};

void startGMime() {
    static const bool started = (g_mime_init(), true);
    Q_UNUSED(started);
}

// Without the folders of either world
QString bareName(const QString& name) {
    const QString line = singleLine(name);
    const qsizetype cut = std::max(line.lastIndexOf(u'/'), line.lastIndexOf(u'\\'));
    const QString bare = line.mid(cut + 1).trimmed();
    return bare.isEmpty() ? QStringLiteral("file") : bare;
}

// Letters without their accents, "_" for whatever old readers and file systems stumble over
QByteArray asciiName(const QString& name) {
    QByteArray plain;
    for (const QChar c : name.normalized(QString::NormalizationForm_KD)) {
        if (c.isMark() || c.isLowSurrogate()) continue;
        const bool known =
            c.unicode() < 0x80 && (c.isLetterOrNumber() || QStringView(u" !#$&'()+,-.;@_").contains(c));
        plain += known ? static_cast<char>(c.unicode()) : '_';
    }
    if (plain.size() <= fallbackLimit) return plain;
    const qsizetype dot = plain.lastIndexOf('.');
    const QByteArray suffix = dot >= 0 && plain.size() - dot <= 10 ? plain.mid(dot) : QByteArray();
    return plain.left(fallbackLimit - suffix.size()) + suffix;
}

// The library folds a long type nowhere, and splits the characters of a long name between lines, so the
// values go in ready-made
void setHeader(GMimePart* part, const char* name, const QByteArray& value) {
    GMimeHeaderList* headers = g_mime_object_get_header_list(GMIME_OBJECT(part));
    g_mime_header_list_set(headers, name, "", nullptr);
    g_mime_header_set_raw_value(g_mime_header_list_get_header(headers, name), value.constData());
}

QByteArray wireText(GMimePart* part) {
    const std::unique_ptr<GMimeFormatOptions, FreeOptions> options(g_mime_format_options_new());
    g_mime_format_options_set_newline_format(options.get(), GMIME_NEWLINE_FORMAT_DOS);
    const Ref<GMimeStream> stream(g_mime_stream_mem_new());
    g_mime_object_write_to_stream(GMIME_OBJECT(part), options.get(), stream.get());
    const GByteArray* bytes = g_mime_stream_mem_get_byte_array(GMIME_STREAM_MEM(stream.get()));
    QByteArray text(reinterpret_cast<const char*>(bytes->data), static_cast<qsizetype>(bytes->len));
    // the line end of an empty content, too: the one that ends the headers is not its own
    if (!text.endsWith("\r\n") || text.endsWith("\r\n\r\n")) text += "\r\n";
    return text;
}

QByteArray filePart(const QString& givenName, const QByteArray& type, const char* charset,
                    const char* disposition, const QByteArray& contentId, const QByteArray& content) {
    startGMime();
    const QString name = bareName(givenName);
    const qsizetype slash = type.indexOf('/');
    const Ref<GMimePart> part(
        g_mime_part_new_with_type(type.left(slash).constData(), type.mid(slash + 1).constData()));

    const bool fits = qstrlen("Content-Type: ;") + static_cast<std::size_t>(type.size()) <= 78;
    QByteArray contentType = (fits ? " " : "\r\n ") + type;
    if (charset != nullptr) contentType += QByteArray("; charset=") + charset;
    contentType += parameter("name", QString::fromLatin1(asciiName(name)));
    setHeader(part.get(), "Content-Type", contentType + "\r\n");
    setHeader(part.get(), "Content-Disposition",
              QByteArray(" ") + disposition + parameter("filename", name) + "\r\n");
    if (!contentId.isEmpty()) g_mime_object_set_content_id(GMIME_OBJECT(part.get()), contentId.constData());

    const Ref<GMimeStream> stream(
        g_mime_stream_mem_new_with_buffer(content.constData(), static_cast<std::size_t>(content.size())));
    const Ref<GMimeDataWrapper> wrapper(
        g_mime_data_wrapper_new_with_stream(stream.get(), GMIME_CONTENT_ENCODING_DEFAULT));
    g_mime_part_set_content(part.get(), wrapper.get());
    g_mime_part_set_content_encoding(part.get(), GMIME_CONTENT_ENCODING_BASE64);
    return wireText(part.get());
}

}  // namespace

QByteArray attachmentPart(const QString& name, const QByteArray& content) {
    QByteArray type = QMimeDatabase().mimeTypeForFile(name, QMimeDatabase::MatchExtension).name().toLatin1();
    const char* charset = nullptr;
    if (type.startsWith("text/") && QString::fromUtf8(content).toUtf8() == content) charset = "utf-8";
    const bool mayStand = type.contains('/') && !type.startsWith("message/") &&
                          !type.startsWith("multipart/") && !type.startsWith("inode/") &&
                          (charset != nullptr || !type.startsWith("text/"));
    if (!mayStand) type = "application/octet-stream";
    return filePart(name, type, charset, "attachment", {}, content);
}

QByteArray imagePart(const QString& name, const QByteArray& type, const QByteArray& contentId,
                     const QByteArray& content) {
    return filePart(name, type, nullptr, "inline", contentId, content);
}

}  // namespace mail
