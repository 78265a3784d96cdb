// A guard that puts a device context back as it was.
#pragma once

#include <afxwin.h>

/// Saves the state of a device context, its selected objects too, for its lifetime.
class SavedContext
{
public:
    explicit SavedContext(CDC& dc) : m_dc(dc), m_saved(dc.SaveDC()) {}
    ~SavedContext() { m_dc.RestoreDC(m_saved); }
    SavedContext(const SavedContext&) = delete;
    SavedContext& operator=(const SavedContext&) = delete;

private:
    CDC& m_dc;
    int m_saved;
};
