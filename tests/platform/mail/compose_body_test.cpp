// SPDX-License-Identifier: GPL-3.0-or-later
#include <gtest/gtest.h>

#include "platform/mail/compose_support.h"
#include "platform/mail/HtmlReferences.h"
#include "platform/mail/QuotedPrintable.h"
#include "support/WholeText.h"

namespace compose_body_test {

using namespace compose;

namespace {

QByteArray quotedPrintable(const QByteArray& text) {
    QByteArray out;
    mail::appendQuotedPrintable(out, text);
    return out;
}

// An independent reading of the encoding: soft line breaks vanish, =XX is an octet
QByteArray readBack(QByteArray encoded) {
    encoded.replace("=\r\n", "");
    QByteArray out;
    for (qsizetype i = 0; i < encoded.size(); ++i) {
        if (encoded[i] != '=') {
            out += encoded[i];
        } else {
            out += static_cast<char>(encoded.mid(i + 1, 2).toInt(nullptr, 16));
            i += 2;
        }
    }
    return out;
}

TEST(QuotedPrintable, PlainTextIsUnchanged) {
    EXPECT_EQ(quotedPrintable("a b\tc <d>!~"), "a b\tc <d>!~");
}

TEST(QuotedPrintable, OtherOctetsAndTheEqualsSignAreEncoded) {
    EXPECT_EQ(quotedPrintable("1=2 \xC3\xA8 \x01\x7F"), "1=3D2 =C3=A8 =01=7F");
}

TEST(QuotedPrintable, EveryLineEndBecomesCrLf) {
    EXPECT_EQ(quotedPrintable("a\rb\nc\r\nd\n\re"), "a\r\nb\r\nc\r\nd\r\n\r\ne");
}

TEST(QuotedPrintable, NulBecomesABlank) {
    EXPECT_EQ(quotedPrintable(QByteArray("a\0b", 3)), "a b");
}

TEST(QuotedPrintable, BlanksAtLineEndsAreEncoded) {
    EXPECT_EQ(quotedPrintable("a \nb\t\r\nc "), "a=20\r\nb=09\r\nc=20");
    EXPECT_EQ(quotedPrintable(QByteArray("a\0", 2)), "a=20");
}

TEST(QuotedPrintable, NoLineStartsWithWhatTransportsChange) {
    EXPECT_EQ(quotedPrintable(".\n..\nFrom x\nFrome\nx."), "=2E\r\n=2E.\r\n=46rom x\r\nFrome\r\nx.");
    EXPECT_EQ(quotedPrintable(QByteArray(75, 'x') + ".y"), QByteArray(75, 'x') + "=\r\n=2Ey");
    EXPECT_EQ(quotedPrintable(QByteArray(75, 'x') + "From y"), QByteArray(75, 'x') + "=\r\n=46rom y");
    EXPECT_EQ(quotedPrintable(QByteArray("From\0y", 6)), "=46rom y");
}

TEST(QuotedPrintable, LinesHaveAtMost76Octets) {
    for (int length = 70; length < 80; ++length) {
        for (const QByteArray& tail :
             {QByteArray("x"), QByteArray("\xC3\xA8"), QByteArray(" "), QByteArray("\n")}) {
            const QByteArray text = QByteArray(length, 'x') + tail + "y" + QByteArray(200, ' ') + "z";
            for (const QByteArray& line : quotedPrintable(text).split('\n')) {
                EXPECT_LE(line.size() - (line.endsWith('\r') ? 1 : 0), 76);
            }
            EXPECT_EQ(readBack(quotedPrintable(text)), QByteArray(text).replace("\n", "\r\n"));
        }
    }
}

TEST(ComposeBody, TextIsBeforeHtmlInAlternative) {
    const QByteArray data = wire(plainMessage());
    EXPECT_TRUE(header(data, "Content-Type").startsWith("multipart/alternative;"));
    const qsizetype text = data.indexOf("Content-Type: text/plain; charset=utf-8\r\n");
    const qsizetype html = data.indexOf("Content-Type: text/html; charset=utf-8\r\n");
    EXPECT_GT(text, 0);
    EXPECT_GT(html, text);
    EXPECT_EQ(data.count("Content-Transfer-Encoding: quoted-printable\r\n"), 2);
}

TEST(ComposeBody, OneFormAloneHasNoLayer) {
    auto message = plainMessage();
    message.BodyText = message.Subject = " \r\n";
    EXPECT_EQ(header(wire(message), "Content-Type"), "text/html; charset=utf-8");
    message = plainMessage();
    message.BodyHtml.clear();
    EXPECT_EQ(header(wire(message), "Content-Type"), "text/plain; charset=utf-8");
    EXPECT_TRUE(wire(message).endsWith("\r\n\r\nBuongiorno Mario\r\n"));
}

TEST(ComposeBody, NoBodyAtAllIsAnEmptyText) {
    auto message = plainMessage();
    message.BodyHtml.clear();
    message.BodyText.clear();
    const QByteArray data = wire(message);
    EXPECT_EQ(complaintAbout(data).toStdString(), "");
    EXPECT_EQ(header(data, "Content-Type"), "text/plain; charset=utf-8");
    EXPECT_TRUE(data.endsWith("\r\n\r\n"));
}

TEST(ComposeBody, FinalLineEndOfTheTextIsNotDoubled) {
    auto message = plainMessage();
    message.BodyHtml.clear();
    message.BodyText = "a\r\n";
    EXPECT_TRUE(wire(message).endsWith("\r\n\r\na\r\n"));
}

TEST(ComposeBody, BoundaryDoesNotOccurInTheContent) {
    auto message = plainMessage();
    const QByteArray first = wire(message);
    const qsizetype from = first.indexOf("boundary=\"") + 10;
    const QByteArray boundary = first.mid(from, first.indexOf('"', from) - from);
    message.BodyText = "--" + boundary + "\r\n\r\n--" + boundary + "--\r\n";
    message.BodyHtml = message.BodyText;
    mail::Composer composer;
    const QByteArray data = wholeOf(composer.compose(message).value().text);
    EXPECT_EQ(data.count("--=_"), 3);
    EXPECT_EQ(complaintAbout(data).toStdString(), "");
}

QByteArray htmlSent(const QString& html) {
    auto message = plainMessage();
    message.BodyText.clear();
    message.Subject.clear();
    message.BodyHtml = html;
    const QByteArray data = wire(message);
    return readBack(data.mid(data.indexOf("\r\n\r\n") + 4)).chopped(2);
}

TEST(ComposeBody, DeclaredEncodingIsBroughtInLine) {
    EXPECT_EQ(htmlSent("<meta charset=\"windows-1252\">x"), "<meta charset=\"utf-8\">x");
    EXPECT_EQ(htmlSent("<META CHARSET=iso-8859-1>x"), "<META CHARSET=utf-8>x");
    EXPECT_EQ(htmlSent("<meta http-equiv=\"Content-Type\" content=\"text/html; charset=iso-8859-15\">x"),
              "<meta http-equiv=\"Content-Type\" content=\"text/html; charset=utf-8\">x");
    EXPECT_EQ(htmlSent("<meta content='text/html;charset = x; a=b' http-equiv=content-type>"),
              "<meta content='text/html;charset = utf-8; a=b' http-equiv=content-type>");
}

TEST(ComposeBody, OtherTextThatMentionsAnEncodingIsLeftAlone) {
    for (const char* html :
         {"<p>charset=windows-1252</p>", "<!-- <meta charset=windows-1252> -->",
          "<script>'<meta charset=windows-1252>'</script>", "<meta name=x content='charset=windows-1252'>",
          "<a charset=windows-1252>x</a>", "<meta http-equiv=refresh content='1;charset=x'>"}) {
        EXPECT_EQ(htmlSent(html).replace("charset=\"utf-8\"", "").toStdString(), std::string(html));
    }
}

TEST(ComposeBody, BrokenMarkupIsSentAsItIs) {
    for (const char* html :
         {"<", "<a", "<a href", "<a href=", "<a href='x", "<meta charset", "<meta charset=", "<!--", "<!-",
          "<style>url(", "<style>a{b:url('x", "<img src=>", "<p style='x:url()'>", "</", "<img src",
          "<meta http-equiv=content-type content=charset>", "a<b", "<script></scr"}) {
        EXPECT_EQ(htmlSent(html).toStdString(), std::string(html));
    }
}

std::vector<std::string> imagesIn(const QByteArray& html) {
    std::vector<std::string> values;
    for (const auto& place : mail::findReferences(html).images) {
        values.push_back(place.value.toStdString());
        EXPECT_LE(place.from + place.length, html.size());
    }
    return values;
}

using Values = std::vector<std::string>;

TEST(HtmlReferences, ImagesBackgroundsAndStylesAreFound) {
    EXPECT_EQ(imagesIn("<IMG alt='>' SRC=/a.png><img/src='/b c'/><img src=\" \\d&amp;e \">"),
              (Values{"/a.png", "/b c", "\\d&e"}));
    EXPECT_EQ(imagesIn("<body background=/a><td class=x background='FILE:b'>"), (Values{"/a", "FILE:b"}));
    EXPECT_EQ(
        imagesIn("<p style=\"background:url(&quot;/a b&quot;) x; c: URL( '/d' )\"><i style='e:url(/f )'>"),
        (Values{"/a b", "/d", "/f"}));
    EXPECT_EQ(imagesIn("<style>p { background: url(\"/a\") } i { b: url(/c) }</style><img src=/d>"),
              (Values{"/a", "/c", "/d"}));
    EXPECT_EQ(imagesIn("<i style='a:url(/url(/b)'><i style='a:url(/c'>"), (Values{"/url(/b"}));
}

TEST(HtmlReferences, AddressesElsewhereAreNotMentioned) {
    EXPECT_EQ(
        imagesIn("<img src=http://x.it/a><img src=a.png><img src='data:image/png;base64,xx'><img src=''>"),
        Values{});
}

TEST(HtmlReferences, FirstOfTwoAttributesCounts) {
    EXPECT_EQ(imagesIn("<img src=/a src=/b>"), (Values{"/a"}));
}

TEST(HtmlReferences, CommentsScriptsAndTextAreNoTags) {
    EXPECT_EQ(imagesIn("<!--<img src=/a>--><script>'<img src=/b>'</script><textarea><img "
                       "src=/c></textarea>&lt;img src=/d>"),
              Values{});
    EXPECT_EQ(imagesIn("<!--><img src=/a>--><!---><img src=/b><!-- --!><img src=/c><!-- <img src=/d>"),
              (Values{"/a", "/b", "/c"}));
    EXPECT_EQ(imagesIn("<title></tit<img src=/a></title><img src=/b>"), (Values{"/b"}));
}

}  // namespace

}  // namespace compose_body_test
