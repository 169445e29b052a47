#include "framework/windowing/Object.h"

#include <gtest/gtest.h>

#include "framework/windowing/ObList.h"

namespace
{

class CShape : public CObject
{
    DECLARE_DYNAMIC(CShape)
};
class CCircle : public CShape
{
    DECLARE_DYNCREATE(CCircle)
};
class CSavedShape : public CShape
{
    DECLARE_SERIAL(CSavedShape)
};

IMPLEMENT_DYNAMIC(CShape, CObject)
IMPLEMENT_DYNCREATE(CCircle, CShape)
IMPLEMENT_SERIAL(CSavedShape, CShape, 7)

CObject* Marked(int number) // a pointer that is only compared
{
    static CCircle objects[8];
    return &objects[number];
}

} // namespace

TEST(RuntimeClass, RecordTellsNameSizeSchemaAndBase)
{
    const CRuntimeClass* record = RUNTIME_CLASS(CSavedShape);
    EXPECT_STREQ(record->m_lpszClassName, "CSavedShape");
    EXPECT_EQ(record->m_nObjectSize, static_cast<int>(sizeof(CSavedShape)));
    EXPECT_EQ(record->m_wSchema, 7u);
    EXPECT_EQ(record->m_pBaseClass, RUNTIME_CLASS(CShape));
    EXPECT_EQ(RUNTIME_CLASS(CShape)->m_wSchema, 0xFFFFu);
    EXPECT_EQ(RUNTIME_CLASS(CObject)->m_pBaseClass, nullptr);
}

TEST(RuntimeClass, ObjectsKnowTheirKind)
{
    const CCircle circle;
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CCircle)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CShape)));
    EXPECT_TRUE(circle.IsKindOf(RUNTIME_CLASS(CObject)));
    EXPECT_FALSE(circle.IsKindOf(RUNTIME_CLASS(CSavedShape)));
}

TEST(RuntimeClass, DownCastGivesNullForAnotherKind)
{
    CCircle circle;
    CObject* object = &circle;
    EXPECT_EQ(DYNAMIC_DOWNCAST(CShape, object), &circle);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CSavedShape, object), nullptr);
    EXPECT_EQ(DYNAMIC_DOWNCAST(CShape, static_cast<CObject*>(nullptr)), nullptr);
}

TEST(RuntimeClass, OnlyClassesWithACreatorCreate)
{
    CObject* made = RUNTIME_CLASS(CCircle)->CreateObject();
    ASSERT_NE(made, nullptr);
    EXPECT_EQ(made->GetRuntimeClass(), RUNTIME_CLASS(CCircle));
    delete made;
    EXPECT_EQ(RUNTIME_CLASS(CShape)->CreateObject(), nullptr);
}

TEST(RuntimeClass, OnlySerialClassesAreFoundByName)
{
    EXPECT_EQ(CRuntimeClass::FromName("CSavedShape"), RUNTIME_CLASS(CSavedShape));
    EXPECT_EQ(CRuntimeClass::FromName("CCircle"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName("CSaved"), nullptr);
    EXPECT_EQ(CRuntimeClass::FromName(""), nullptr);
}

TEST(ObList, WalksFromHeadToTail)
{
    CObList list(3);
    for (int i = 0; i < 8; ++i)
        list.AddTail(Marked(i));
    EXPECT_EQ(list.GetCount(), 8);
    int expected = 0;
    for (POSITION at = list.GetHeadPosition(); at;)
        EXPECT_EQ(list.GetNext(at), Marked(expected++));
    EXPECT_EQ(expected, 8);
}

TEST(ObList, EmptyListGivesNulls)
{
    CObList list;
    EXPECT_TRUE(list.IsEmpty());
    EXPECT_EQ(list.RemoveTail(), nullptr);
    EXPECT_EQ(list.GetHeadPosition(), nullptr);
    EXPECT_EQ(list.Find(Marked(0)), nullptr);
}

TEST(ObList, RemovalKeepsTheOtherPositions)
{
    CObList list;
    const POSITION first = list.AddTail(Marked(0));
    const POSITION second = list.AddTail(Marked(1));
    const POSITION third = list.AddTail(Marked(2));
    list.RemoveAt(second);
    POSITION at = first;
    EXPECT_EQ(list.GetNext(at), Marked(0));
    EXPECT_EQ(at, third);
    list.RemoveAt(first);
    EXPECT_EQ(list.GetHeadPosition(), third);
    EXPECT_EQ(list.RemoveTail(), Marked(2));
    EXPECT_TRUE(list.IsEmpty());
}

TEST(ObList, FindSearchesBehindAPosition)
{
    CObList list;
    const POSITION first = list.AddTail(Marked(5));
    list.AddTail(Marked(6));
    const POSITION third = list.AddTail(Marked(5));
    EXPECT_EQ(list.Find(Marked(5)), first);
    EXPECT_EQ(list.Find(Marked(5), first), third);
    EXPECT_EQ(list.Find(Marked(5), third), nullptr);
}

TEST(ObList, LongUseDoesNotGrowTheList)
{
    CObList list(2);
    for (int round = 0; round < 1000; ++round) {
        list.AddTail(Marked(round % 8));
        list.AddTail(Marked(0));
        list.RemoveTail();
        if (round % 3 == 0)
            list.RemoveAll();
    }
    EXPECT_EQ(list.GetCount(), 999 % 3 == 0 ? 0 : 999 % 3);
}
