// The painted dialog bar as numbers: which colours and brush a control on it takes, what is painted where, what is disabled.
#include "BarColors.h"

#include <kx/CaseFold.h>

namespace
{
bool isPiece(bool isButton, const wchar_t* className)
{
    return isButton || kx::compareFolded(className, L"Button") == 0 || kx::compareFolded(className, L"Static") == 0;
}
} // namespace

BarColors BarColors::Of(unsigned int kind, bool enabled, bool painted, bool isButton, const wchar_t* className)
{
    const int textColor = enabled ? COLOR_WINDOWTEXT : COLOR_GRAYTEXT;
    switch (kind)
    {
    case OfMessageBox:
    case OfEdit:
    case OfListBox:
        if (enabled)
            return {BarBrush::Pale, textColor, Ground::PaleBlue};
        // The ground of the text is not the colour of the brush: kept on purpose.
        return {BarBrush::Disabled, textColor, Ground::Highlight};
    case OfStatic:
        if (painted && isPiece(isButton, className))
            return {BarBrush::Pattern, textColor, Ground::Transparent};
        return {};
    default:
        return {};
    }
}

CRect BarRules::Background(const CRect& client)
{
    return {client.TopLeft(), CSize(client.right, client.bottom)};
}

bool BarRules::IsSpared(unsigned int id, unsigned int propertyId, unsigned int helpId)
{
    return id == 0 || id == propertyId || id == helpId;
}

bool SheetRules::DisablesOk(bool protectionDisabled, bool disabled, bool sheetDisabled)
{
    return !protectionDisabled && (disabled || sheetDisabled);
}

unsigned int SheetRules::Key(unsigned int key, bool sheetDisabled)
{
    return sheetDisabled && key == VK_RETURN ? VK_CLEAR : key;
}
