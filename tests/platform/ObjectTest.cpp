#include "platform/core/Exception.h"
#include "platform/core/Geometry.h"
#include "tests/platform/TestDialogs.h"

#include <gtest/gtest.h>

namespace {

class Beam : public CObject {
    DECLARE_DYNAMIC(Beam)
};
class Silent : public Beam {}; // declares no run-time class
class Column : public Silent {
    DECLARE_DYNCREATE(Column)
};
IMPLEMENT_DYNAMIC(Beam, CObject)
IMPLEMENT_DYNCREATE(Column, Beam)

class Counted : public CSimpleException {
  public:
    explicit Counted(int& deleted, BOOL autoDelete) : CSimpleException("x", autoDelete), m_deleted(deleted) {}
    ~Counted() override { ++m_deleted; }

  private:
    int& m_deleted;
};

} // namespace

// Catches lists by kind that count an undeclared class as its own kind or lose a derived one.
TEST(RuntimeClass, FollowsTheDeclaredClasses) {
    const Beam beam;
    const Silent silent;
    Column column;
    EXPECT_STREQ(silent.GetRuntimeClass()->m_lpszClassName, "Beam");
    EXPECT_TRUE(silent.IsKindOf(RUNTIME_CLASS(Beam)));
    EXPECT_TRUE(column.IsKindOf(RUNTIME_CLASS(Beam)));
    EXPECT_FALSE(beam.IsKindOf(RUNTIME_CLASS(Column)));
    EXPECT_EQ(DYNAMIC_DOWNCAST(Column, static_cast<CObject*>(&column)), &column);
    EXPECT_EQ(DYNAMIC_DOWNCAST(Column, &beam), nullptr);
    EXPECT_EQ(RUNTIME_CLASS(Beam)->CreateObject(), nullptr);
    const std::unique_ptr<CObject> made(RUNTIME_CLASS(Column)->CreateObject());
    EXPECT_TRUE(made->IsKindOf(RUNTIME_CLASS(Column)));
    EXPECT_EQ(sizeof(Beam), sizeof(void*)) << "millions of model objects carry the base";
}

// Catches exceptions that leak, and static ones that are deleted.
TEST(Exception, EndsAsItWasMade) {
    int deleted = 0;
    Counted local(deleted, FALSE);
    local.Delete();
    EXPECT_EQ(deleted, 0);
    (new Counted(deleted, TRUE))->Delete();
    EXPECT_EQ(deleted, 1);
    for (int i = 0; i < 2; ++i) // the same object both times
        try {
            AfxThrowMemoryException();
        } catch (CException* exception) {
            EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CMemoryException)));
            exception->Delete();
        }
}

TEST(Exception, SaysWhatHappened) {
    CMemoryException memory(FALSE);
    CFileException file(CFileException::fileNotFound, -1, "ponte.asg");
    CUserException silent(FALSE);
    const Boxes boxes;
    for (CException* exception : std::initializer_list<CException*>{&memory, &file, &silent})
        exception->ReportError();
    EXPECT_EQ(boxes.texts, (std::vector<std::string>{"Memoria esaurita.", "Impossibile trovare il file ponte.asg.",
                                                     "Si è verificato un errore."}));
    char little[5];
    EXPECT_TRUE(memory.GetErrorMessage(little, sizeof little));
    EXPECT_STREQ(little, "Memo");
    EXPECT_FALSE(memory.GetErrorMessage(nullptr, 0));
}

// Catches edges counted twice or not at all, and unions that grow from nothing.
TEST(Geometry, RectanglesAreHalfOpen) {
    const CRect rect(2, 3, 12, 8);
    EXPECT_TRUE(rect.PtInRect({2, 3}) && rect.PtInRect({11, 7}));
    EXPECT_FALSE(rect.PtInRect({12, 7}) || rect.PtInRect({11, 8}));
    EXPECT_EQ(rect.CenterPoint(), CPoint(7, 5));
    CRect result;
    EXPECT_FALSE(result.IntersectRect(rect, CRect(12, 3, 20, 8))) << "touching rectangles share nothing";
    EXPECT_EQ(result, CRect());
    EXPECT_TRUE(result.UnionRect(rect, CRect(50, 50, 50, 60))) << "an empty rectangle adds nothing";
    EXPECT_EQ(result, rect);
    EXPECT_EQ(rect | CRect(0, 0, 1, 1), CRect(0, 0, 12, 8));
    CRect turned(12, 8, 2, 3);
    turned.NormalizeRect();
    EXPECT_EQ(turned, rect);
    turned.DeflateRect(1, 2);
    turned.OffsetRect(-3, -5);
    EXPECT_EQ(turned, CRect(0, 0, 8, 1));
    EXPECT_EQ(CPoint(static_cast<LPARAM>(0xfffe0005)), CPoint(5, -2)) << "mouse points are signed";
}
