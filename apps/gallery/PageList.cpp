#include "PageList.h"

#include "pages/ArtworkPage.h"
#include "pages/DelayClickPage.h"
#include "pages/DialogPage.h"
#include "pages/DoubleClickPage.h"
#include "pages/FaderPage.h"
#include "pages/SlidingStackPage.h"
#include "pages/StylesPage.h"
#include "pages/TripleActionPage.h"

namespace {

template<typename... Pages>
PageList make()
{
    PageList pages;
    (pages.push_back(std::make_unique<Pages>()), ...);
    return pages;
}

} // namespace

PageList makePages()
{
    return make<DialogPage, TripleActionPage, DelayClickPage, DoubleClickPage, FaderPage,
                SlidingStackPage, StylesPage, ArtworkPage>();
}
