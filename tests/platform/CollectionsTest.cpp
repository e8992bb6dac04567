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

CString Joined(const CStringArray& array) {
    CString text;
    for (int i = 0; i < array.GetSize(); ++i)
        text += array[i] + "|";
    return text;
}

} // namespace

TEST(Array, GrowsAndRemoves) {
    CStringArray array;
    EXPECT_EQ(array.Add("a"), 0);
    array.SetSize(3);
    array.Add("x");
    EXPECT_EQ(Joined(array), "a|||x|");
    array.RemoveAt(1, 2);
    EXPECT_EQ(array.Append(array), 2);
    CStringArray copy;
    copy.Copy(array);
    array.RemoveAll();
    EXPECT_EQ(Joined(copy), "a|x|a|x|");
    EXPECT_EQ(array.GetUpperBound(), -1);
    CUIntArray numbers;
    numbers.SetSize(3);
    EXPECT_EQ(numbers[2], 0u) << "new elements are zero";
}

// Catches reads and writes outside an array, which would go unnoticed until something else breaks.
TEST(Array, RefusesPositionsOutside) {
    CObArray array;
    array.Add(nullptr);
    const char* const refused = "CInvalidArgException";
    EXPECT_EQ(ThrownBy([&] { array.GetAt(1); }), refused);
    EXPECT_EQ(ThrownBy([&] { array[-1] = nullptr; }), refused);
    EXPECT_EQ(ThrownBy([&] { array.SetAt(1, nullptr); }), refused);
    EXPECT_EQ(ThrownBy([&] { array.RemoveAt(0, 2); }), refused);
    EXPECT_EQ(ThrownBy([&] { array.RemoveAt(1, 0x7fffffff); }), refused);
    EXPECT_EQ(ThrownBy([&] { array.SetSize(-1); }), refused);
    EXPECT_EQ(array.GetSize(), 1);
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

TEST(List, WalksAndRemoves) {
    CList<CString> list;
    const POSITION b = list.AddTail("b");
    list.AddTail("c");
    list.AddHead("a");
    CString text;
    // A walk that removes the element it has just got is the framework's usual loop.
    for (POSITION at = list.GetHeadPosition(); at;) {
        const POSITION current = at;
        text += list.GetNext(at);
        if (current == b)
            list.RemoveAt(current);
    }
    list.AddTail("a");
    for (POSITION at = list.GetTailPosition(); at;)
        text += list.GetPrev(at);
    EXPECT_EQ(text, "abcaca");
    const POSITION second = list.Find("a", list.Find("a"));
    ASSERT_NE(second, nullptr);
    EXPECT_EQ(list.Find("a", second), nullptr);
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty() && !list.GetHeadPosition() && !list.GetTailPosition());
    EXPECT_EQ(ThrownBy([&] { list.GetAt(nullptr); }), "CInvalidArgException");
}
