// Run-time class records, across module borders on Windows (the framework's own classes live in its DLL).
#include <afx.h>
#include <afxcoll.h>

#include <memory>
#include <new>

#include "Raises.h"

namespace
{

class CAnimal : public CObject
{
    DECLARE_DYNAMIC(CAnimal)
};

class CDog : public CAnimal
{
    DECLARE_DYNCREATE(CDog)
public:
    int legs = 4;
};

class CPuppy : public CDog
{
    // without a record of its own
};

class CShort : public CObject
{
    DECLARE_DYNCREATE(CShort)
public:
    CShort() { throw std::bad_alloc(); }
};

class CNames : public CStringArray
{
    DECLARE_DYNCREATE(CNames)
};

// A static table that names classes of another module.
const struct
{
    CRuntimeClass* record;
    LPCSTR name;
} table[] = {
    {RUNTIME_CLASS(CObject), "CObject"}, {RUNTIME_CLASS(CStringArray), "CStringArray"}, {RUNTIME_CLASS(CDog), "CDog"}};

} // namespace

IMPLEMENT_DYNAMIC(CAnimal, CObject)
IMPLEMENT_DYNCREATE(CDog, CAnimal)
IMPLEMENT_DYNCREATE(CShort, CObject)
IMPLEMENT_DYNCREATE(CNames, CStringArray)

TEST(RuntimeClasses, a_record_tells_name_and_size)
{
    EXPECT_STREQ(RUNTIME_CLASS(CDog)->m_lpszClassName, "CDog");
    EXPECT_EQ(RUNTIME_CLASS(CDog)->m_nObjectSize, static_cast<int>(sizeof(CDog)));
    EXPECT_EQ(RUNTIME_CLASS(CDog), &CDog::classCDog);
    EXPECT_EQ(RUNTIME_CLASS(CDog)->m_wSchema, 0xFFFFU);
}

TEST(RuntimeClasses, objects_know_their_class)
{
    CDog dog;
    EXPECT_EQ(dog.GetRuntimeClass(), RUNTIME_CLASS(CDog));
    const CPuppy puppy;
    EXPECT_EQ(puppy.GetRuntimeClass(), RUNTIME_CLASS(CDog));
}

TEST(RuntimeClasses, is_kind_of_walks_the_bases)
{
    const CDog dog;
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CDog)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CAnimal)));
    EXPECT_TRUE(dog.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(dog.IsKindOf(RUNTIME_CLASS(CException)));
    EXPECT_FALSE(dog.IsKindOf(nullptr));
    EXPECT_TRUE(RUNTIME_CLASS(CDog)->IsDerivedFrom(RUNTIME_CLASS(CAnimal)));
    EXPECT_FALSE(RUNTIME_CLASS(CAnimal)->IsDerivedFrom(RUNTIME_CLASS(CDog)));
}

TEST(RuntimeClasses, create_object_needs_the_create_macro)
{
    const std::unique_ptr<CObject> dog(RUNTIME_CLASS(CDog)->CreateObject());
    ASSERT_NE(dog, nullptr);
    EXPECT_EQ(STATIC_DOWNCAST(CDog, dog.get())->legs, 4);
    EXPECT_EQ(RUNTIME_CLASS(CAnimal)->CreateObject(), nullptr);
}

TEST(RuntimeClasses, lack_of_memory_gives_no_object)
{
    EXPECT_EQ(RUNTIME_CLASS(CShort)->CreateObject(), nullptr);
}

TEST(RuntimeClasses, classes_are_found_by_name)
{
    EXPECT_EQ(CRuntimeClass::FromName("CDog"), RUNTIME_CLASS(CDog));
    EXPECT_EQ(CRuntimeClass::FromName(L"CDog"), RUNTIME_CLASS(CDog));
    EXPECT_EQ(CRuntimeClass::FromName("CStringArray"), RUNTIME_CLASS(CStringArray));
    EXPECT_EQ(CRuntimeClass::FromName("CNobody"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(static_cast<LPCSTR>(nullptr)), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(static_cast<LPCWSTR>(nullptr)), nullptr);
    const wchar_t accented[] = {0xE9, 0};
    EXPECT_EQ(CRuntimeClass::FromName(accented), nullptr);
}

TEST(RuntimeClasses, objects_are_created_by_name)
{
    const std::unique_ptr<CObject> dog(CRuntimeClass::CreateObject(L"CDog"));
    ASSERT_NE(dog, nullptr);
    EXPECT_TRUE(dog->IsKindOf(RUNTIME_CLASS(CDog)));
    EXPECT_EQ(CRuntimeClass::CreateObject("CNobody"), nullptr);
}

TEST(RuntimeClasses, downcasts)
{
    CDog dog;
    CObject* const object = &dog;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CDog, object), &dog);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CAnimal, object), &dog);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CException, object), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CDog, static_cast<CObject*>(nullptr)), nullptr);
}

TEST(RuntimeClasses, a_class_of_this_module_derives_from_one_of_the_framework)
{
    const CNames names;
    EXPECT_TRUE(names.IsKindOf(RUNTIME_CLASS(CStringArray)));
    EXPECT_TRUE(names.IsKindOf(RUNTIME_CLASS(CObject)));
}

TEST(RuntimeClasses, static_tables_may_name_classes)
{
    for (const auto& row : table)
    {
        ASSERT_NE(row.record, nullptr);
        EXPECT_STREQ(row.record->m_lpszClassName, row.name);
    }
}

TEST(RuntimeClasses, a_class_leaves_the_list_with_its_module)
{
    static CRuntimeClass visitor = {"CVisitor", 8, 0xFFFF, nullptr, nullptr};
    {
        const AFX_CLASSINIT entry(&visitor);
        EXPECT_EQ(CRuntimeClass::FromName("CVisitor"), &visitor);
    }
    EXPECT_EQ(CRuntimeClass::FromName("CVisitor"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CDog"), RUNTIME_CLASS(CDog));
}

TEST(RuntimeClasses, deleting_through_the_base_runs_the_destructor)
{
    CObject* const object = new CNames;
    static_cast<CNames*>(object)->Add(L"freed with its array"); // the sanitizer would report a leak
    delete object;
}
