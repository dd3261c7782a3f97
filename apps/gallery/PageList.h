#pragma once

#include <memory>
#include <vector>

#include "Page.h"

using PageList = std::vector<std::unique_ptr<Page>>;

/// All pages in the order of the list; needs no application object.
PageList makePages();
