#include "PageList.h"

#include "pages/ArtworkPage.h"
#include "pages/ButtonTabsPage.h"
#include "pages/DelayClickPage.h"
#include "pages/DialogPage.h"
#include "pages/DirectionKeysPage.h"
#include "pages/DoubleClickPage.h"
#include "pages/FaderPage.h"
#include "pages/FileTreesPage.h"
#include "pages/HelpDialogPage.h"
#include "pages/LoadSavePage.h"
#include "pages/LogPage.h"
#include "pages/MessageBoxPage.h"
#include "pages/MiniMissionControlPage.h"
#include "pages/MissionControlPage.h"
#include "pages/NumberFieldsPage.h"
#include "pages/NumpadPage.h"
#include "pages/PasswordPage.h"
#include "pages/PropertiesPage.h"
#include "pages/SidePanelsPage.h"
#include "pages/SlidingStackPage.h"
#include "pages/SplashPage.h"
#include "pages/StylesPage.h"
#include "pages/ThemesPage.h"
#include "pages/TransferPage.h"
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
    return make<PropertiesPage, DialogPage, MessageBoxPage, HelpDialogPage, ButtonTabsPage,
                NumpadPage, NumberFieldsPage, DirectionKeysPage, PasswordPage, TripleActionPage,
                DelayClickPage, DoubleClickPage, FaderPage, SlidingStackPage, LoadSavePage,
                TransferPage, FileTreesPage, StylesPage, MissionControlPage, MiniMissionControlPage,
                SidePanelsPage, SplashPage, ThemesPage, LogPage, ArtworkPage>();
}
