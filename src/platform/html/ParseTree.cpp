// SPDX-License-Identifier: GPL-3.0-or-later
#include "platform/html/ParseTree.h"

#include <algorithm>
#include <csetjmp>
#include <csignal>
#include <ctime>
#include <vector>

#include "platform/html/Bounds.h"

namespace {

constexpr std::size_t memoryAtLeast = std::size_t{64} << 20;
constexpr std::size_t memoryPerByte = 100;
constexpr double secondsAtLeast = 1;
constexpr double secondsPerByte = 1e-6;
constexpr unsigned allocationsBetweenLooksAtTheClock = 64;

double processorSeconds() {
    timespec now{};
    clock_gettime(CLOCK_THREAD_CPUTIME_ID, &now);
    return static_cast<double>(now.tv_sec) + static_cast<double>(now.tv_nsec) * 1e-9;
}

/// Allocates the parser's memory and leaves the parse by a long jump when a bound is reached or when one of
/// the parser's own assertions fails. That is safe because only C code is in between, and it owns only memory
/// of the pool.
struct Guard {
    std::pmr::memory_resource* pool;
    std::size_t bytesLeft;
    double deadline;
    unsigned allocations = 0;
    sigjmp_buf givenUp{};
};

thread_local Guard* runningGuard = nullptr;

void leaveParse(int signal) {
    if (runningGuard != nullptr) siglongjmp(runningGuard->givenUp, 1);
    std::signal(signal, SIG_DFL);
    std::raise(signal);
}

/// While it lives, a failed assertion of the parser ends the parse instead of the program.
class AssertionNet {
  public:
    explicit AssertionNet(Guard& guard) {
        runningGuard = &guard;
        struct sigaction action {};
        action.sa_handler = leaveParse;
        sigaction(SIGABRT, &action, &m_before);
    }
    ~AssertionNet() {
        sigaction(SIGABRT, &m_before, nullptr);
        runningGuard = nullptr;
    }
    AssertionNet(const AssertionNet&) = delete;
    AssertionNet& operator=(const AssertionNet&) = delete;

  private:
    struct sigaction m_before {};
};

// A block starts with its own size, which the pool needs when it is freed
constexpr std::size_t blockHeader = alignof(std::max_align_t);

void* allocate(void* userData, std::size_t size) {
    auto* guard = static_cast<Guard*>(userData);
    // a multiple of the alignment, or the pool may cut unaligned blocks
    const std::size_t whole = (size + 2 * blockHeader - 1) / blockHeader * blockHeader;
    const bool late =
        ++guard->allocations % allocationsBetweenLooksAtTheClock == 0 && processorSeconds() > guard->deadline;
    if (late || whole > guard->bytesLeft) siglongjmp(guard->givenUp, 1);
    guard->bytesLeft -= whole;
    auto* block = static_cast<std::byte*>(guard->pool->allocate(whole, blockHeader));
    *reinterpret_cast<std::size_t*>(block) = whole;
    return block + blockHeader;
}

void deallocate(void* userData, void* pointer) {
    if (pointer == nullptr) return;
    auto* guard = static_cast<Guard*>(userData);
    auto* block = static_cast<std::byte*>(pointer) - blockHeader;
    const std::size_t whole = *reinterpret_cast<std::size_t*>(block);
    guard->bytesLeft += whole;
    guard->pool->deallocate(block, whole, blockHeader);
}

const GumboNode* parseWithin(Guard& guard, const QByteArray& text) {
    GumboOptions options = kGumboDefaultOptions;
    options.allocator = allocate;
    options.deallocator = deallocate;
    options.userdata = &guard;
    options.max_errors = 0;
    if (sigsetjmp(guard.givenUp, 1) != 0) return nullptr;
    return gumbo_parse_with_options(&options, text.constData(), static_cast<std::size_t>(text.size()))
        ->document;
}

// Gumbo keeps the text right before </form> until something is inserted, which then is after the
// form. An element without effect makes it insert the text in its place.
constexpr char formEnd[] = "</form";
constexpr char mark[] = "<param vestrola-mark>";
constexpr char markWritten[] = "<param vestrola-mark=\"\">";
constexpr char markAsText[] = "&lt;param vestrola-mark&gt;";

QByteArray withMarks(const QByteArray& text) {
    const QByteArray lower = text.toLower();
    QByteArray marked;
    qsizetype from = 0;
    for (qsizetype at = lower.indexOf(formEnd); at >= 0; at = lower.indexOf(formEnd, at + 1)) {
        if (at == 0 || text[at - 1] == '>') continue;
        marked += text.mid(from, at - from) + mark;
        from = at;
    }
    return from == 0 ? text : marked + text.mid(from);
}

int depthOf(const GumboNode& document) {
    struct Level {
        const GumboNode* node;
        unsigned nextChild = 0;
    };
    std::vector<Level> path{{&document}};
    std::size_t deepest = 0;
    while (!path.empty()) {
        Level& current = path.back();
        const GumboVector& children = childrenOf(*current.node);
        if (current.nextChild == children.length) {
            path.pop_back();
            continue;
        }
        path.push_back({static_cast<const GumboNode*>(children.data[current.nextChild++])});
        if (elementOf(*path.back().node) != nullptr) deepest = std::max(deepest, path.size() - 1);
    }
    return static_cast<int>(deepest);
}

}  // namespace

ParseTree::ParseTree(const QByteArray& utf8)
    : m_text(withMarks(utf8)),
      m_status(html::boundTags({utf8.constData(), static_cast<std::size_t>(utf8.size())})) {
    if (!m_status.ok()) return;
    const auto length = static_cast<std::size_t>(m_text.size());
    Guard guard{&m_memory, memoryAtLeast + memoryPerByte * length,
                processorSeconds() + secondsAtLeast + secondsPerByte * static_cast<double>(length)};
    const AssertionNet net(guard);
    m_document = parseWithin(guard, m_text);
    m_status = m_document != nullptr ? html::boundDepth(depthOf(*m_document)) : html::unreadable();
}

const GumboVector& childrenOf(const GumboNode& node) {
    if (node.type == GUMBO_NODE_DOCUMENT) return node.v.document.children;
    const GumboElement* element = elementOf(node);
    return element != nullptr ? element->children : kGumboEmptyVector;
}

const GumboElement* elementOf(const GumboNode& node) {
    return node.type == GUMBO_NODE_ELEMENT || node.type == GUMBO_NODE_TEMPLATE ? &node.v.element : nullptr;
}

bool isHtmlElement(const GumboNode& node, GumboTag tag) {
    const GumboElement* element = elementOf(node);
    return element != nullptr && element->tag == tag && element->tag_namespace == GUMBO_NAMESPACE_HTML;
}

QByteArray withoutMarks(QByteArray text) {
    for (const char* form : {markWritten, mark, markAsText})
        text.replace(form, QByteArray());
    return text;
}
