#include "oxa/formats/KxSemanticNode.h"

CKxSemanticNode::CKxSemanticNode(CString text, int count, CString kind) : m_text(text), m_count(count), m_kind(kind) {}

CKxSemanticNode::~CKxSemanticNode() = default;
