// EXPECT_RAISES: a statement must raise a framework exception of exactly that class; and readable texts in failures.
#pragma once

#include <afx.h>
#include <gtest/gtest.h>

#include <ostream>

#define EXPECT_RAISES(class_name, statement)                                                                           \
    do                                                                                                                 \
    {                                                                                                                  \
        bool raised = false;                                                                                           \
        try                                                                                                            \
        {                                                                                                              \
            statement;                                                                                                 \
        }                                                                                                              \
        catch (class_name * e)                                                                                         \
        {                                                                                                              \
            raised = e->GetRuntimeClass() == RUNTIME_CLASS(class_name);                                                \
            e->Delete();                                                                                               \
        }                                                                                                              \
        EXPECT_TRUE(raised) << #statement;                                                                             \
    } while (false)

inline void PrintTo(const CString& text, std::ostream* out)
{
    *out << '"';
    for (int i = 0; i < text.GetLength(); ++i)
    {
        const auto code = static_cast<unsigned>(text[i]);
        if (code >= 0x20 && code < 0x7F)
        {
            *out << static_cast<char>(code);
        }
        else
        {
            *out << "\\u{" << code << '}';
        }
    }
    *out << '"';
}
