// The page of unit combo boxes: lengths, a force and a stress, each with its SI value, canonical text and flags.
#pragma once
#include "Page.h"
#include "oxa/units/KxComboBoxUnit.h"
#include <array>

class CPageUnits : public CPage
{
public:
    CPageUnits();
    void walk(const TakePicture& take) override;

protected:
    BOOL OnInitDialog() override;

    DECLARE_MESSAGE_MAP()
    void OnAddValues();
    void OnSetVariant();
    void OnClear();
    void OnEnabled();
    void OnTimer(UINT_PTR id);

private:
    void showState();
    std::array<CKxComboBoxUnit, 5> m_fields;
};
