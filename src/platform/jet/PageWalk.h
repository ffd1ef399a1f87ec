// SPDX-License-Identifier: GPL-3.0-or-later
#pragma once

#include <vector>

#include "platform/jet/PageFile.h"

namespace jet {

/// Returns pages in rising order for a walk over a table. Those of a file that is longer than the cache are
/// read many at a time and do not go into it: they would evict the pages that are needed again. Members throw
/// Failure.
class PageWalk {
  public:
    explicit PageWalk(PageFile& file) : m_file(file) {}

    /// Page n, valid until the next one is asked for. Nothing is changed meanwhile.
    const Page& page(uint32_t n);

  private:
    PageFile& m_file;
    PagePtr m_held;             ///< the page that was returned, where it is one of the cache
    std::vector<Page> m_block;  ///< read last, from page m_first on; m_count of them count
    uint32_t m_first = 0;
    size_t m_count = 0;
    size_t m_wanted = 1;
};

}  // namespace jet
