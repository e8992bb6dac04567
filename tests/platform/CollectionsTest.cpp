#include "platform/core/Collections.h"

#include <gtest/gtest.h>

namespace {

// The framework's exceptions are pointers: runs the operation and says which kind was thrown, ending it.
template <typename Operation>
CString ThrownBy(Operation operation) {
    try {
        operation();
    } catch (CException* exception) {
        const CString name = exception->GetRuntimeClass()->m_lpszClassName;
        exception->Delete();
        return name;
    }
    return "nothing";
}

} // namespace

// Catches reads and writes outside an array, which would go unnoticed until something else breaks.
TEST(Array, RefusesPositionsOutside) {
    CObArray array;
    array.Add(nullptr);
    const char* const refused = "CInvalidArgException";
    EXPECT_EQ(ThrownBy([&] { array.GetAt(1); }), refused);
    EXPECT_EQ(ThrownBy([&] { array[-1] = nullptr; }), refused);
    EXPECT_EQ(ThrownBy([&] { array.SetSize(-1); }), refused);
    array.SetSize(2);
    EXPECT_EQ(array[1], nullptr) << "new elements are zero";
}

// Catches adding that moves all elements each time: quadratic, this outlasts the runner's limit.
TEST(Array, AMillionElementsAreCheap) {
    CUIntArray array;
    CObList list;
    for (UINT i = 0; i < 1'000'000; ++i) {
        array.Add(i);
        list.AddTail(static_cast<CObject*>(nullptr));
    }
    EXPECT_EQ(array[999'999], 999'999u);
    EXPECT_EQ(list.GetCount(), 1'000'000);
}

TEST(List, IsWalkedAndSearched) {
    CList<CString> list;
    for (const char* each : {"a", "b", "a"})
        list.AddTail(each);
    CString text;
    for (POSITION at = list.GetHeadPosition(); at;)
        text += list.GetNext(at);
    EXPECT_EQ(text, "aba");
    const POSITION second = list.Find("a", list.Find("a"));
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(list.Find("a", second), nullptr);
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty() && !list.GetHeadPosition());
    EXPECT_EQ(ThrownBy([&] { list.GetAt(nullptr); }), "CInvalidArgException");
}
