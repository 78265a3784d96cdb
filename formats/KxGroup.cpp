#include "oxa/formats/KxGroup.h"

IMPLEMENT_DYNAMIC(CKxGroup, CObject)

CKxGroup::CKxGroup(CString text, int start, int end, int minCount, int maxCount)
    : m_text(text), m_start(start), m_end(end), m_minCount(minCount), m_maxCount(maxCount)
{
}

CKxGroup::~CKxGroup() = default;
