// The list of pages.
#include "PageAnimation.h"
#include "PageBars.h"
#include "PageCombos.h"
#include "PageFormats.h"
#include "PagePickers.h"
#include "PagePictures.h"
#include "PageSmart.h"
#include "PageTips.h"
#include "PageTree.h"
#include "PageUnits.h"

std::vector<std::unique_ptr<CPage>> makePages()
{
    std::vector<std::unique_ptr<CPage>> pages;
    pages.push_back(std::make_unique<CPageUnits>());
    pages.push_back(std::make_unique<CPageFormats>());
    pages.push_back(std::make_unique<CPageTips>());
    pages.push_back(std::make_unique<CPagePictures>());
    pages.push_back(std::make_unique<CPageAnimation>());
    pages.push_back(std::make_unique<CPageTree>());
    pages.push_back(std::make_unique<CPagePickers>());
    pages.push_back(std::make_unique<CPageBars>());
    pages.push_back(std::make_unique<CPageCombos>());
    pages.push_back(std::make_unique<CPageSmart>());
    return pages;
}
