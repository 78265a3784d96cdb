#include "oxa/formats/KxSeparator.h"

IMPLEMENT_DYNAMIC(CKxSeparator, CObject)

CKxSeparator::CKxSeparator(CString text, int start, int end) : m_text(text), m_start(start), m_end(end) {}

CKxSeparator::~CKxSeparator() = default;
