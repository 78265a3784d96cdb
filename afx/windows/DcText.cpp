// Device contexts: texts, their extents, and what is known of the font.
#include <afxwin.h>

#include "DcBoth.h"

using kx::onBoth;

namespace
{

CSize packedSize(LONG size)
{
    return CSize(static_cast<short>(LOWORD(size)), static_cast<short>(HIWORD(size)));
}

CSize textExtent(HDC dc, LPCTSTR text, int count)
{
    SIZE size = {0, 0};
    ::GetTextExtentPoint32W(dc, text, count, &size);
    return size;
}

} // namespace

BOOL CDC::TextOut(int x, int y, LPCTSTR lpszString, int nCount)
{
    return ::TextOutW(m_hDC, x, y, lpszString, nCount);
}

BOOL CDC::TextOut(int x, int y, const CString& str)
{
    return TextOut(x, y, str, str.GetLength());
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, LPCTSTR lpszString, UINT nCount, LPINT lpDxWidths)
{
    return ::ExtTextOutW(m_hDC, x, y, nOptions, lpRect, lpszString, nCount, lpDxWidths);
}

BOOL CDC::ExtTextOut(int x, int y, UINT nOptions, LPCRECT lpRect, const CString& str, LPINT lpDxWidths)
{
    return ExtTextOut(x, y, nOptions, lpRect, str, static_cast<UINT>(str.GetLength()), lpDxWidths);
}

CSize CDC::TabbedTextOut(int x, int y, LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions,
                         int nTabOrigin)
{
    return packedSize(
        ::TabbedTextOutW(m_hDC, x, y, lpszString, nCount, nTabPositions, lpnTabStopPositions, nTabOrigin));
}

CSize CDC::TabbedTextOut(int x, int y, const CString& str, int nTabPositions, LPINT lpnTabStopPositions, int nTabOrigin)
{
    return TabbedTextOut(x, y, str, str.GetLength(), nTabPositions, lpnTabStopPositions, nTabOrigin);
}

int CDC::DrawText(LPCTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat)
{
    return lpRect == nullptr ? 0 : ::DrawTextW(m_hDC, lpszString, nCount, lpRect, nFormat);
}

int CDC::DrawText(const CString& str, LPRECT lpRect, UINT nFormat)
{
    return DrawText(str, str.GetLength(), lpRect, nFormat & ~static_cast<UINT>(DT_MODIFYSTRING));
}

int CDC::DrawTextEx(LPTSTR lpszString, int nCount, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    return lpRect == nullptr ? 0 : ::DrawTextExW(m_hDC, lpszString, nCount, lpRect, nFormat, lpDTParams);
}

int CDC::DrawTextEx(const CString& str, LPRECT lpRect, UINT nFormat, LPDRAWTEXTPARAMS lpDTParams)
{
    return DrawTextEx(const_cast<LPTSTR>(static_cast<LPCTSTR>(str)), str.GetLength(), lpRect,
                      nFormat & ~static_cast<UINT>(DT_MODIFYSTRING), lpDTParams);
}

CSize CDC::GetTextExtent(LPCTSTR lpszString, int nCount) const
{
    return textExtent(m_hAttribDC, lpszString, nCount);
}

CSize CDC::GetTextExtent(const CString& str) const
{
    return textExtent(m_hAttribDC, str, str.GetLength());
}

CSize CDC::GetOutputTextExtent(LPCTSTR lpszString, int nCount) const
{
    return textExtent(m_hDC, lpszString, nCount);
}

CSize CDC::GetOutputTextExtent(const CString& str) const
{
    return textExtent(m_hDC, str, str.GetLength());
}

CSize CDC::GetTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return packedSize(
        static_cast<LONG>(::GetTabbedTextExtentW(m_hAttribDC, lpszString, nCount, nTabPositions, lpnTabStopPositions)));
}

CSize CDC::GetTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

CSize CDC::GetOutputTabbedTextExtent(LPCTSTR lpszString, int nCount, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return packedSize(
        static_cast<LONG>(::GetTabbedTextExtentW(m_hDC, lpszString, nCount, nTabPositions, lpnTabStopPositions)));
}

CSize CDC::GetOutputTabbedTextExtent(const CString& str, int nTabPositions, LPINT lpnTabStopPositions) const
{
    return GetOutputTabbedTextExtent(str, str.GetLength(), nTabPositions, lpnTabStopPositions);
}

BOOL CDC::GetTextExtentExPointI(LPWORD pgiIn, int cgi, int nMaxExtent, LPINT lpnFit, LPINT alpDx, LPSIZE lpSize) const
{
    return ::GetTextExtentExPointI(m_hAttribDC, pgiIn, cgi, nMaxExtent, lpnFit, alpDx, lpSize);
}

BOOL CDC::GetTextExtentPointI(LPWORD pgiIn, int cgi, LPSIZE lpSize) const
{
    return ::GetTextExtentPointI(m_hAttribDC, pgiIn, cgi, lpSize);
}

BOOL CDC::GrayString(CBrush* pBrush, BOOL(CALLBACK* lpfnOutput)(HDC, LPARAM, int), LPARAM lpData, int nCount, int x,
                     int y, int nWidth, int nHeight)
{
    return ::GrayStringW(m_hDC, static_cast<HBRUSH>(pBrush->GetSafeHandle()), lpfnOutput, lpData, nCount, x, y, nWidth,
                         nHeight);
}

UINT CDC::GetTextAlign() const
{
    return ::GetTextAlign(m_hAttribDC);
}

UINT CDC::SetTextAlign(UINT nFlags)
{
    return onBoth(*this, static_cast<UINT>(GDI_ERROR), [=](HDC dc) { return ::SetTextAlign(dc, nFlags); });
}

int CDC::GetTextFace(int nCount, LPTSTR lpszFacename) const
{
    return ::GetTextFaceW(m_hAttribDC, nCount, lpszFacename);
}

int CDC::GetTextFace(CString& rString) const
{
    wchar_t face[LF_FULLFACESIZE] = {};
    const int length = ::GetTextFaceW(m_hAttribDC, LF_FULLFACESIZE, face);
    rString = face;
    return length;
}

BOOL CDC::GetTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return lpMetrics != nullptr && ::GetTextMetricsW(m_hAttribDC, lpMetrics);
}

BOOL CDC::GetOutputTextMetrics(LPTEXTMETRIC lpMetrics) const
{
    return lpMetrics != nullptr && ::GetTextMetricsW(m_hDC, lpMetrics);
}

UINT CDC::GetOutlineTextMetrics(UINT cbData, LPOUTLINETEXTMETRIC lpotm) const
{
    return ::GetOutlineTextMetricsW(m_hAttribDC, cbData, lpotm);
}

int CDC::SetTextJustification(int nBreakExtra, int nBreakCount)
{
    return onBoth(*this, 0,
                  [=](HDC dc) { return static_cast<int>(::SetTextJustification(dc, nBreakExtra, nBreakCount)); });
}

int CDC::GetTextCharacterExtra() const
{
    return ::GetTextCharacterExtra(m_hAttribDC);
}

int CDC::SetTextCharacterExtra(int nCharExtra)
{
    return onBoth(*this, static_cast<int>(0x80000000U),
                  [=](HDC dc) { return ::SetTextCharacterExtra(dc, nCharExtra); });
}

DWORD CDC::SetMapperFlags(DWORD dwFlag)
{
    return ::SetMapperFlags(m_hDC, dwFlag);
}

CSize CDC::GetAspectRatioFilter() const
{
    SIZE size = {0, 0};
    ::GetAspectRatioFilterEx(m_hAttribDC, &size);
    return size;
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32W(m_hAttribDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetOutputCharWidth(UINT nFirstChar, UINT nLastChar, LPINT lpBuffer) const
{
    return ::GetCharWidth32W(m_hDC, nFirstChar, nLastChar, lpBuffer);
}

BOOL CDC::GetCharWidth(UINT nFirstChar, UINT nLastChar, float* lpFloatBuffer) const
{
    return ::GetCharWidthFloatW(m_hAttribDC, nFirstChar, nLastChar, lpFloatBuffer);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABC lpabc) const
{
    return ::GetCharABCWidthsW(m_hAttribDC, nFirstChar, nLastChar, lpabc);
}

BOOL CDC::GetCharABCWidths(UINT nFirstChar, UINT nLastChar, LPABCFLOAT lpABCF) const
{
    return ::GetCharABCWidthsFloatW(m_hAttribDC, nFirstChar, nLastChar, lpABCF);
}

int CDC::GetKerningPairs(int nPairs, LPKERNINGPAIR lpkrnpair) const
{
    return nPairs < 0 ? 0 : static_cast<int>(::GetKerningPairsW(m_hAttribDC, static_cast<DWORD>(nPairs), lpkrnpair));
}

DWORD CDC::GetFontData(DWORD dwTable, DWORD dwOffset, LPVOID lpData, DWORD cbData) const
{
    return ::GetFontData(m_hAttribDC, dwTable, dwOffset, lpData, cbData);
}

DWORD CDC::GetFontLanguageInfo() const
{
    return ::GetFontLanguageInfo(m_hDC);
}

DWORD CDC::GetGlyphOutline(UINT nChar, UINT nFormat, LPGLYPHMETRICS lpgm, DWORD cbBuffer, LPVOID lpBuffer,
                           const MAT2* lpmat2) const
{
    return ::GetGlyphOutlineW(m_hAttribDC, nChar, nFormat, lpgm, cbBuffer, lpBuffer, lpmat2);
}
