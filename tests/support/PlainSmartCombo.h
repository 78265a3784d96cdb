// Sorting and filling a smart combo box step by step, without any short cut: the judge of the quick way.
#pragma once
#include "formats/RememberedValues.h"
#include "support/MemorySmartCombo.h"

struct PlainSmartCombo
{
    static void InsertElement(POSITION position, CStringList& list, const CString& value)
    {
        POSITION neighbour = position;
        if (value.Compare(list.GetAt(position)) > 0)
        {
            list.GetNext(neighbour);
            if (neighbour == nullptr)
                list.AddTail(value);
            else if (value.Compare(list.GetAt(neighbour)) < 0)
                list.InsertAfter(position, value);
            else
                InsertElement(neighbour, list, value);
        }
        else if (value.Compare(list.GetAt(position)) < 0)
        {
            list.GetPrev(neighbour);
            if (neighbour == nullptr)
                list.AddHead(value);
            else if (value.Compare(list.GetAt(neighbour)) > 0)
                list.InsertBefore(position, value);
            else
                InsertElement(neighbour, list, value);
        }
    }

    template <class Smart> static void SetStringCombo(Smart& smart, CStringList& values)
    {
        smart.data().list.RemoveAll();
        smart.combo().ResetContent();
        for (POSITION place = values.GetHeadPosition(); place != nullptr;)
            smart.call().AddStringCombo(values.GetNext(place));
        if (smart.data().formatText.IsEmpty())
            smart.call().SetSelectText(smart.data().format.CreateEditFormat());
        else
            smart.call().ResetSelectText();
    }

    template <class Smart> static void SortCombo(Smart& smart)
    {
        const bool selected = smart.combo().GetCurSel() != -1;
        const CString kept = smart.combo().GetEditText();
        CStringList sorted;
        for (POSITION place = smart.data().list.GetHeadPosition(); place != nullptr;)
        {
            const CString value = smart.data().list.GetNext(place);
            if (sorted.IsEmpty())
                sorted.AddTail(value);
            else
                InsertElement(sorted.GetHeadPosition(), sorted, value);
        }
        SetStringCombo(smart, sorted);
        if (selected)
            smart.call().SetCurSel(kept);
    }
};
