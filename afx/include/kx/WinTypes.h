// The plain Win32 types, records and constants that logic code uses: windows.h on Windows, our own typedefs elsewhere.
#pragma once

#ifdef _WIN32

#ifndef NOMINMAX
#define NOMINMAX
#endif
#ifndef UNICODE
#define UNICODE
#endif
#ifndef _UNICODE
#define _UNICODE
#endif
#include <windows.h>

#include <tchar.h>

#else

#include <cstdint>

using BOOL = int;
using BYTE = std::uint8_t;
using WORD = std::uint16_t;
using USHORT = std::uint16_t;
using SHORT = std::int16_t;
using DWORD = std::uint32_t;
using UINT = unsigned int;
using INT = int;
using LONG = std::int32_t;
using ULONG = std::uint32_t;
using LONGLONG = long long;
using ULONGLONG = unsigned long long;
using DWORDLONG = unsigned long long;
using UINT_PTR = std::uintptr_t;
using INT_PTR = std::intptr_t;
using LONG_PTR = std::intptr_t;
using ULONG_PTR = std::uintptr_t;
using DWORD_PTR = std::uintptr_t;
using SIZE_T = std::uintptr_t;
using LPARAM = std::intptr_t;
using WPARAM = std::uintptr_t;
using LRESULT = std::intptr_t;
using HRESULT = std::int32_t;
using CHAR = char;
using WCHAR = wchar_t;
using TCHAR = wchar_t;
using LPSTR = char*;
using LPCSTR = const char*;
using LPWSTR = wchar_t*;
using LPCWSTR = const wchar_t*;
using LPTSTR = wchar_t*;
using LPCTSTR = const wchar_t*;
using LPVOID = void*;
using LPCVOID = const void*;
using LPBYTE = BYTE*;
using LPWORD = WORD*;
using LPDWORD = DWORD*;
using PUINT = UINT*;
using COLORREF = DWORD;
using LCID = DWORD;
using LANGID = WORD;
#define __int64 long long
#define VOID void

#ifndef TRUE
#define TRUE 1
#endif
#ifndef FALSE
#define FALSE 0
#endif
#define MAX_PATH 260
#define CALLBACK
#define PASCAL
#define CONST const

#define _T(x) L##x
#define _TEXT(x) L##x
#define TEXT(x) L##x

#define LOWORD(l) (static_cast<WORD>(static_cast<DWORD_PTR>(l) & 0xffff))
#define HIWORD(l) (static_cast<WORD>((static_cast<DWORD_PTR>(l) >> 16) & 0xffff))
#define LOBYTE(w) (static_cast<BYTE>(static_cast<DWORD_PTR>(w) & 0xff))
#define HIBYTE(w) (static_cast<BYTE>((static_cast<DWORD_PTR>(w) >> 8) & 0xff))
#define MAKEWORD(a, b)                                                                                                 \
    (static_cast<WORD>((static_cast<DWORD_PTR>(a) & 0xff) | ((static_cast<DWORD_PTR>(b) & 0xff) << 8)))
#define MAKELONG(a, b)                                                                                                 \
    (static_cast<LONG>(                                                                                                \
        static_cast<DWORD>((static_cast<DWORD_PTR>(a) & 0xffff) | ((static_cast<DWORD_PTR>(b) & 0xffff) << 16))))
#define MAKELPARAM(l, h) (static_cast<LPARAM>(static_cast<DWORD>(MAKELONG(l, h))))
#define MAKEWPARAM(l, h) (static_cast<WPARAM>(static_cast<DWORD>(MAKELONG(l, h))))
#define GET_X_LPARAM(lp) (static_cast<int>(static_cast<short>(LOWORD(lp))))
#define GET_Y_LPARAM(lp) (static_cast<int>(static_cast<short>(HIWORD(lp))))

#define RGB(r, g, b)                                                                                                   \
    (static_cast<COLORREF>((static_cast<DWORD>(r) & 0xff) | ((static_cast<DWORD>(g) & 0xff) << 8) |                    \
                           ((static_cast<DWORD>(b) & 0xff) << 16)))
#define GetRValue(rgb) (LOBYTE(rgb))
#define GetGValue(rgb) (LOBYTE(static_cast<DWORD_PTR>(rgb) >> 8))
#define GetBValue(rgb) (LOBYTE(static_cast<DWORD_PTR>(rgb) >> 16))
#define CLR_INVALID 0xFFFFFFFFU
#define CLR_NONE 0xFFFFFFFFU
#define CLR_DEFAULT 0xFF000000U

struct tagPOINT
{
    LONG x;
    LONG y;
};
using POINT = tagPOINT;
using LPPOINT = POINT*;

struct tagSIZE
{
    LONG cx;
    LONG cy;
};
using SIZE = tagSIZE;
using LPSIZE = SIZE*;

struct tagRECT
{
    LONG left;
    LONG top;
    LONG right;
    LONG bottom;
};
using RECT = tagRECT;
using LPRECT = RECT*;
using LPCRECT = const RECT*;

#pragma pack(push, 2)
struct tagBITMAPFILEHEADER
{
    WORD bfType;
    DWORD bfSize;
    WORD bfReserved1;
    WORD bfReserved2;
    DWORD bfOffBits;
};
#pragma pack(pop)
using BITMAPFILEHEADER = tagBITMAPFILEHEADER;
using LPBITMAPFILEHEADER = BITMAPFILEHEADER*;

struct tagBITMAPINFOHEADER
{
    DWORD biSize;
    LONG biWidth;
    LONG biHeight;
    WORD biPlanes;
    WORD biBitCount;
    DWORD biCompression;
    DWORD biSizeImage;
    LONG biXPelsPerMeter;
    LONG biYPelsPerMeter;
    DWORD biClrUsed;
    DWORD biClrImportant;
};
using BITMAPINFOHEADER = tagBITMAPINFOHEADER;
using LPBITMAPINFOHEADER = BITMAPINFOHEADER*;

struct tagRGBQUAD
{
    BYTE rgbBlue;
    BYTE rgbGreen;
    BYTE rgbRed;
    BYTE rgbReserved;
};
using RGBQUAD = tagRGBQUAD;
using LPRGBQUAD = RGBQUAD*;

struct tagRGBTRIPLE
{
    BYTE rgbtBlue;
    BYTE rgbtGreen;
    BYTE rgbtRed;
};
using RGBTRIPLE = tagRGBTRIPLE;

struct tagBITMAPINFO
{
    BITMAPINFOHEADER bmiHeader;
    RGBQUAD bmiColors[1];
};
using BITMAPINFO = tagBITMAPINFO;
using LPBITMAPINFO = BITMAPINFO*;

static_assert(sizeof(BITMAPFILEHEADER) == 14 && sizeof(BITMAPINFOHEADER) == 40 && sizeof(RGBQUAD) == 4 &&
              sizeof(RGBTRIPLE) == 3);

#include "kx/WinConstants.h"

#endif
