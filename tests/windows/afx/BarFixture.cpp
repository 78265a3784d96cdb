// What the frame of the bar tests handles.
#include "BarFixture.h"

#include "ids.h"

BEGIN_MESSAGE_MAP(CBarFrame, CFrameWnd)
    // void OnDo()
    ON_COMMAND(ID_TEST_DO, &CBarFrame::OnDo)
    // void OnUpdateDo(CCmdUI*)
    ON_UPDATE_COMMAND_UI(ID_TEST_DO, &CBarFrame::OnUpdateDo)
    // void OnUpdateCheck(CCmdUI*)
    ON_UPDATE_COMMAND_UI(ID_TEST_CHECK, &CBarFrame::OnUpdateCheck)
END_MESSAGE_MAP()
