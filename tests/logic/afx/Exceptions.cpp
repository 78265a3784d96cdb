// The exception classes and the TRY/CATCH macros.
#include <afx.h>

#include <new>

#include "Raises.h"

namespace
{

int living = 0;

class CCounted : public CException
{
    DECLARE_DYNAMIC(CCounted)
public:
    CCounted() { ++living; }
    ~CCounted() override { --living; }
};

CString messageOf(const CException& e)
{
    wchar_t text[100] = L"before";
    e.GetErrorMessage(text, 100);
    return text;
}

} // namespace

IMPLEMENT_DYNAMIC(CCounted, CException)

TEST(Exceptions, helpers_throw_their_class_by_pointer)
{
    EXPECT_RAISES(CMemoryException, AfxThrowMemoryException());
    EXPECT_RAISES(CNotSupportedException, AfxThrowNotSupportedException());
    EXPECT_RAISES(CResourceException, AfxThrowResourceException());
    EXPECT_RAISES(CUserException, AfxThrowUserException());
    EXPECT_RAISES(CInvalidArgException, AfxThrowInvalidArgException());
}

TEST(Exceptions, a_base_class_catches_them)
{
    bool caught = false;
    try
    {
        AfxThrowInvalidArgException();
    }
    catch (CException* e)
    {
        caught = e->IsKindOf(RUNTIME_CLASS(CSimpleException)) != FALSE;
        e->Delete();
    }
    EXPECT_TRUE(caught);
}

TEST(Exceptions, the_same_static_object_is_thrown_again_after_delete)
{
    CException* seen[2] = {};
    for (CException*& slot : seen)
    {
        try
        {
            AfxThrowUserException();
        }
        catch (CException* e)
        {
            slot = e;
            e->Delete();
        }
    }
    EXPECT_EQ(seen[0], seen[1]);
    EXPECT_FALSE(seen[0]->m_bAutoDelete);
}

TEST(Exceptions, delete_frees_heap_objects)
{
    auto* const e = new CCounted;
    EXPECT_EQ(living, 1);
    e->Delete();
    EXPECT_EQ(living, 0);
}

TEST(Exceptions, messages)
{
    EXPECT_EQ(messageOf(CMemoryException(FALSE)), L"Out of memory.");
    EXPECT_EQ(messageOf(CNotSupportedException(FALSE)), L"An unsupported operation was attempted.");
    EXPECT_EQ(messageOf(CResourceException(FALSE)), L"A required resource was unavailable.");
    EXPECT_EQ(messageOf(CInvalidArgException(FALSE)), L"Encountered an improper argument.");
    EXPECT_EQ(messageOf(CUserException(FALSE)), L"");
}

TEST(Exceptions, a_message_is_cut_to_the_buffer)
{
    const CMemoryException e(FALSE);
    wchar_t text[4] = {L'#', L'#', L'#', L'#'};
    UINT help = 5;
    EXPECT_TRUE(e.GetErrorMessage(text, 4, &help));
    EXPECT_STREQ(text, L"Out");
    EXPECT_EQ(help, 0U);
    EXPECT_TRUE(e.GetErrorMessage(text, 1));
    EXPECT_STREQ(text, L"");
    EXPECT_FALSE(e.GetErrorMessage(text, 0));
    EXPECT_FALSE(e.GetErrorMessage(nullptr, 10));
}

TEST(Exceptions, a_plain_exception_has_no_message)
{
    CCounted e;
    wchar_t text[10] = L"before";
    EXPECT_FALSE(e.GetErrorMessage(text, 10));
    EXPECT_STREQ(text, L"");
}

TEST(Exceptions, catch_macro_deletes_at_the_end_of_the_block)
{
    TRY
    {
        THROW(new CCounted);
    }
    CATCH(CCounted, e)
    {
        EXPECT_EQ(living, 1);
        EXPECT_TRUE(e->IsKindOf(RUNTIME_CLASS(CCounted)));
    }
    END_CATCH
    EXPECT_EQ(living, 0);
}

TEST(Exceptions, and_catch_takes_the_fitting_class)
{
    int branch = 0;
    TRY
    {
        AfxThrowUserException();
    }
    CATCH(CMemoryException, e)
    {
        branch = 1;
    }
    AND_CATCH(CUserException, e)
    {
        branch = 2;
    }
    AND_CATCH_ALL(e)
    {
        branch = 3;
    }
    END_CATCH_ALL
    EXPECT_EQ(branch, 2);
}

TEST(Exceptions, throw_last_passes_the_living_exception_on)
{
    int seen = 0;
    TRY{TRY{THROW(new CCounted);
}
CATCH_ALL(e)
{
    ++seen;
    THROW_LAST();
}
END_CATCH_ALL
}
CATCH(CCounted, e)
{
    ++seen;
    EXPECT_EQ(living, 1);
}
END_CATCH
EXPECT_EQ(seen, 2);
EXPECT_EQ(living, 0);
}

TEST(Exceptions, a_new_exception_in_a_catch_block_deletes_the_old_one){TRY{TRY{THROW(new CCounted);
}
CATCH_ALL(e)
{
    AfxThrowUserException();
}
END_CATCH_ALL
}
CATCH(CUserException, e)
{
    EXPECT_EQ(living, 0);
}
END_CATCH
}

TEST(Exceptions, report_error_goes_to_the_handler_of_the_window_half)
{
    CUserException e(FALSE);
    const KxReportErrorHandler before =
        KxSetReportErrorHandler([](CException*, UINT type, UINT id) { return static_cast<int>(type * 10 + id); });
    EXPECT_EQ(e.ReportError(4, 2), 42);
    KxSetReportErrorHandler(nullptr);
    EXPECT_EQ(e.ReportError(), 0);
    KxSetReportErrorHandler(before);
}

TEST(Exceptions, address_checks)
{
    int x = 0;
    EXPECT_TRUE(AfxIsValidAddress(&x, sizeof x));
    EXPECT_FALSE(AfxIsValidAddress(nullptr, 1));
    EXPECT_TRUE(AfxIsValidString(L""));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCWSTR>(nullptr)));
    EXPECT_FALSE(AfxIsValidString(static_cast<LPCSTR>(nullptr)));
}

TEST(Exceptions, ensure_raises_and_verify_evaluates)
{
    int evaluated = 0;
    VERIFY(++evaluated == 1);
    EXPECT_EQ(evaluated, 1);
    ENSURE(evaluated == 1);
    EXPECT_RAISES(CInvalidArgException, ENSURE(evaluated == 2));
}
