// SPDX-License-Identifier: GPL-3.0-or-later
// Twice the text takes no more than 2.3 times the work, whatever the text is. Work is counted in steps of the
// readers' own code: they are compiled once more for this program, with a call at each branch.
#include <gtest/gtest.h>

#include <cstdint>

#include "platform/html/HtmlDocument.h"
#include "platform/html/HtmlPatterns.h"
#include "platform/mail/HtmlReferences.h"
#include "platform/mail/TextPart.h"
#include "platform/mail/WebAddress.h"

namespace growth_test {

namespace {

std::uint64_t steps = 0;

}  // namespace

extern "C" void __sanitizer_cov_trace_pc() {
    ++steps;
}

namespace {

constexpr int times = 2500;
constexpr double mostGrowth = 2.3;

/// As it goes from the file to a recipient, and in its raw form where a recipient's values make the body.
std::uint64_t stepsFor(const QByteArray& text) {
    const std::uint64_t before = steps;
    HtmlDocument document;
    const bool taken = document.setDocumentHTML(QString::fromUtf8(text)).ok();
    for (const QByteArray& body : {text, taken ? document.documentHTML().toUtf8() : QByteArray()}) {
        const mail::HtmlReferences references = mail::findReferences(body);
        mail::textPart(document.bodyInnerText(), references, QString());
        for (const auto& place : references.addresses)
            mail::attributeAsUri({body.constData() + place.from, static_cast<std::size_t>(place.length)});
    }
    return steps - before;
}

class Growth : public ::testing::TestWithParam<std::size_t> {};

TEST_P(Growth, IsThatOfTheText) {
    const HtmlPattern pattern = htmlPatterns()[GetParam()];
    const std::uint64_t once = stepsFor(pattern.text(times));
    const std::uint64_t twice = stepsFor(pattern.text(2 * times));
    EXPECT_GT(once, 0U);
    EXPECT_LE(static_cast<double>(twice), mostGrowth * static_cast<double>(once)) << pattern.name;
}

INSTANTIATE_TEST_SUITE_P(Patterns, Growth, ::testing::Range(std::size_t{0}, htmlPatterns().size()));

// Checks the test itself: disproportionate growth is found
TEST(GrowthCount, StepsAreCounted) {
    const QByteArray text("<p>x</p>");
    EXPECT_GT(stepsFor(text.repeated(200)), 20 * stepsFor(text));
}

}  // namespace

}  // namespace growth_test
