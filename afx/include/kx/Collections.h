// The collection classes with fixed element types.
#pragma once

#include "kx/Array.h"
#include "kx/List.h"
#include "kx/Map.h"
#include "kx/String.h"

// Arrays

class KXAFX_API CByteArray : public CArray<BYTE, BYTE>
{
    DECLARE_DYNAMIC(CByteArray)
};

class KXAFX_API CWordArray : public CArray<WORD, WORD>
{
    DECLARE_DYNAMIC(CWordArray)
};

class KXAFX_API CDWordArray : public CArray<DWORD, DWORD>
{
    DECLARE_DYNAMIC(CDWordArray)
};

class KXAFX_API CUIntArray : public CArray<UINT, UINT>
{
    DECLARE_DYNAMIC(CUIntArray)
};

class KXAFX_API CPtrArray : public CArray<void*, void*>
{
    DECLARE_DYNAMIC(CPtrArray)
};

/// Does not own its objects.
class KXAFX_API CObArray : public CArray<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CObArray)
};

class KXAFX_API CStringArray : public CArray<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringArray)
};

// Lists

class KXAFX_API CPtrList : public CList<void*, void*>
{
    DECLARE_DYNAMIC(CPtrList)
public:
    explicit CPtrList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};

/// Does not own its objects.
class KXAFX_API CObList : public CList<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CObList)
public:
    explicit CObList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};

class KXAFX_API CStringList : public CList<CString, const CString&>
{
    DECLARE_DYNAMIC(CStringList)
public:
    explicit CStringList(INT_PTR nBlockSize = 10) : CList(nBlockSize) {}
};

// Maps

class KXAFX_API CMapWordToPtr : public CMap<WORD, WORD, void*, void*>
{
    DECLARE_DYNAMIC(CMapWordToPtr)
public:
    explicit CMapWordToPtr(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};

class KXAFX_API CMapPtrToWord : public CMap<void*, void*, WORD, WORD>
{
    DECLARE_DYNAMIC(CMapPtrToWord)
public:
    explicit CMapPtrToWord(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};

class KXAFX_API CMapPtrToPtr : public CMap<void*, void*, void*, void*>
{
    DECLARE_DYNAMIC(CMapPtrToPtr)
public:
    explicit CMapPtrToPtr(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};

class KXAFX_API CMapWordToOb : public CMap<WORD, WORD, CObject*, CObject*>
{
    DECLARE_DYNAMIC(CMapWordToOb)
public:
    explicit CMapWordToOb(INT_PTR nBlockSize = 10) : CMap(nBlockSize) {}
};

/// What the maps with text keys have besides CMap: the stored form of a key, and the documented hash function.
template <class VALUE, class ARG_VALUE> class KxStringMap : public CMap<CString, LPCTSTR, VALUE, ARG_VALUE>
{
public:
    explicit KxStringMap(INT_PTR nBlockSize = 10) : CMap<CString, LPCTSTR, VALUE, ARG_VALUE>(nBlockSize) {}

    /// The map's own copy of the key, good until it is removed.
    BOOL LookupKey(LPCTSTR key, LPCTSTR& rKey) const
    {
        const auto* const pair = this->PLookup(key);
        if (pair == nullptr)
        {
            return FALSE;
        }
        rKey = pair->key;
        return TRUE;
    }
    UINT HashKey(LPCTSTR key) const noexcept { return kx::hashText(key); }
};

class KXAFX_API CMapStringToPtr : public KxStringMap<void*, void*>
{
    DECLARE_DYNAMIC(CMapStringToPtr)
public:
    explicit CMapStringToPtr(INT_PTR nBlockSize = 10) : KxStringMap(nBlockSize) {}
};

/// Does not own its objects.
class KXAFX_API CMapStringToOb : public KxStringMap<CObject*, CObject*>
{
    DECLARE_DYNAMIC(CMapStringToOb)
public:
    explicit CMapStringToOb(INT_PTR nBlockSize = 10) : KxStringMap(nBlockSize) {}
};

class KXAFX_API CMapStringToString : public KxStringMap<CString, LPCTSTR>
{
    DECLARE_DYNAMIC(CMapStringToString)
public:
    explicit CMapStringToString(INT_PTR nBlockSize = 10) : KxStringMap(nBlockSize) {}
};
