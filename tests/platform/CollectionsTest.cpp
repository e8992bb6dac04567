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

TEST(Array, InsertsRemovesAndGrows) {
    CStringArray array;
    EXPECT_EQ(array.Add("b"), 0);
    array.InsertAt(0, "a");
    array.InsertAt(4, "e"); // beyond the end: the gap is empty texts
    EXPECT_EQ(Joined(array), "a|b|||e|");
    array.SetAtGrow(5, array[0]); // an element of its own, which growing moves
    array.RemoveAt(2, 2);
    EXPECT_EQ(Joined(array), "a|b|e|a|");
    array.InsertAt(1, "x", 2);
    EXPECT_EQ(Joined(array), "a|x|x|b|e|a|");
    array.SetSize(2);
    EXPECT_EQ(array.Append(array), 2);
    CStringArray copy;
    copy.Copy(array);
    array.RemoveAll();
    EXPECT_EQ(Joined(copy), "a|x|a|x|");
    EXPECT_EQ(array.GetUpperBound(), -1);
    EXPECT_EQ(array.GetData(), nullptr);
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
    EXPECT_EQ(ThrownBy([&] { array.SetAtGrow(-1, nullptr); }), refused);
    EXPECT_EQ(ThrownBy([&] { array.InsertAt(-1, static_cast<CObject*>(nullptr)); }), refused);
    EXPECT_EQ(ThrownBy([&] { array.RemoveAt(0, 2); }), refused);
    EXPECT_EQ(ThrownBy([&] { array.RemoveAt(1, 0x7fffffff); }), refused);
    EXPECT_EQ(ThrownBy([&] { array.SetSize(-1); }), refused);
    EXPECT_EQ(array.GetSize(), 1);
}

// Catches adding that moves all elements each time: quadratic, this outlasts the runner's limit.
TEST(Array, AMillionElementsAreCheap) {
    CDWordArray array;
    CObList list;
    CMap<DWORD, DWORD, int, int> map;
    for (DWORD i = 0; i < 1'000'000; ++i) {
        array.Add(i);
        list.AddTail(static_cast<CObject*>(nullptr));
        map[i] = 1;
    }
    EXPECT_EQ(array[999'999], 999'999u);
    EXPECT_EQ(list.GetCount() + map.GetCount(), 2'000'000);
}

TEST(List, WalksInsertsAndRemoves) {
    CStringList list;
    const POSITION b = list.AddTail("b");
    list.AddTail("d");
    list.AddHead("a");
    list.InsertAfter(b, "c");
    list.InsertBefore(b, "+");
    CString text;
    // A walk that removes the element it has just got is the framework's usual loop.
    for (POSITION at = list.GetHeadPosition(); at;) {
        const POSITION current = at;
        text += list.GetNext(at);
        if (current == b)
            list.RemoveAt(current);
    }
    for (POSITION at = list.GetTailPosition(); at;)
        text += list.GetPrev(at);
    EXPECT_EQ(text, "a+bcddc+a");
    EXPECT_EQ(list.RemoveHead() + list.RemoveTail(), "ad");
    EXPECT_EQ(list.GetAt(list.FindIndex(1)), "c");
    EXPECT_EQ(list.FindIndex(2), nullptr);
    list.AddTail(&list); // itself: must end
    EXPECT_EQ(list.GetCount(), 4);
    const POSITION second = list.Find("c", list.Find("c"));
    EXPECT_NE(second, nullptr);
    EXPECT_EQ(list.Find("c", second), nullptr);
    list.RemoveAll();
    EXPECT_TRUE(list.IsEmpty() && !list.GetHeadPosition() && !list.GetTailPosition());
    EXPECT_EQ(ThrownBy([&] { list.GetHead(); }), "CInvalidArgException");
    EXPECT_EQ(ThrownBy([&] { list.RemoveTail(); }), "CInvalidArgException");
}

TEST(Map, FindsAndWalks) {
    CMapStringToString map;
    map.SetAt("uno", "1");
    map["due"] = "2";
    map["due"] = "due";
    CString value("kept");
    EXPECT_FALSE(map.Lookup("tre", value));
    EXPECT_EQ(value, "kept");
    EXPECT_TRUE(map.Lookup("due", value));
    EXPECT_EQ(value, "due");
    int seen = 0;
    for (POSITION at = map.GetStartPosition(); at; ++seen) {
        CString key;
        map.GetNextAssoc(at, key, value);
        map.RemoveKey(key); // of the element just got
    }
    EXPECT_EQ(seen, 2);
    EXPECT_TRUE(map.IsEmpty());
    EXPECT_FALSE(map.RemoveKey("uno"));
}
