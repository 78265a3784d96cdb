// What the platform's tree is in the middle of, and which nodes it goes on with behind that.
#include "TreeWork.h"

namespace treelist
{

TreeWork::Hold TreeWork::HoldOf(const NMHDR& notification)
{
    Hold hold;
    switch (notification.code)
    {
    case NM_CUSTOMDRAW:
    case TVN_GETDISPINFOW:
    case TVN_SETDISPINFOW:
        hold.all = true;
        break;
    case TVN_DELETEITEMW:
        hold.nodes[0] = reinterpret_cast<const NMTREEVIEWW&>(notification).itemOld.hItem;
        hold.all = hold.removes = true;
        break;
    case TVN_SELCHANGEDW:
        DoneWithNodes();
        break;
    case TVN_SELCHANGINGW:
    case TVN_ITEMEXPANDINGW:
    case TVN_ITEMEXPANDEDW:
    case TVN_BEGINDRAGW:
    case TVN_BEGINRDRAGW:
    case TVN_SINGLEEXPAND:
        hold.nodes[0] = reinterpret_cast<const NMTREEVIEWW&>(notification).itemNew.hItem;
        hold.nodes[1] = reinterpret_cast<const NMTREEVIEWW&>(notification).itemOld.hItem;
        break;
    case TVN_BEGINLABELEDITW:
    case TVN_ENDLABELEDITW:
        hold.nodes[0] = reinterpret_cast<const NMTVDISPINFOW&>(notification).item.hItem;
        break;
    default:
        break;
    }
    return hold;
}

} // namespace treelist
