// Points, units and paths: plain values, no window.
#include "model/values/ExceptionEx.h"
#include "model/values/FPoint.h"
#include "model/values/Path.h"
#include "model/values/Units.h"

#include <gtest/gtest.h>

#include <filesystem>
#include <fstream>
#include <unistd.h>

namespace {

// Faults: squares that overflow or vanish, a null vector divided by its length.
TEST(PointTest, DistanceAndDirectionHoldAtAnySize) {
    EXPECT_DOUBLE_EQ(CFPoint::GetMod(CFPoint(0, 0, 0), CFPoint(3, 4, 12)), 13);
    EXPECT_DOUBLE_EQ(CFPoint(3e200, 4e200, 0).GetMod(), 5e200);
    EXPECT_DOUBLE_EQ(CFPoint(3e-200, 4e-200, 0).GetMod(), 5e-200);

    CFPoint null;
    EXPECT_FALSE(null.Normalize());
    EXPECT_EQ(null, CFPoint(0, 0, 0));
    CFPoint slope(0, 3, 4);
    EXPECT_TRUE(slope.Normalize());
    EXPECT_DOUBLE_EQ(slope.GetMod(), 1);

    const CFPoint x(1, 0, 0), y(0, 1, 0);
    EXPECT_EQ(Cross(x, y), CFPoint(0, 0, 1)); // a left-handed product turns every load upside down
    EXPECT_FALSE(CFPoint(0, std::nan(""), 0).IsFinite());
}

// Faults: the factor used upside down, an exponent forgotten, rounding in a conversion to the same unit, symbols off by
// one.
TEST(UnitsTest, QuantitiesConvertByTheirDimension) {
    CGrandezza pressure(1, -2, 1, Lunghezza::Metres, Forza::KiloNewtons);
    pressure.ChangeLunghezza(Lunghezza::Millimetres);
    pressure.ChangeForza(Forza::Newton);
    EXPECT_NEAR(pressure.GetValue(), 1e-3, 1e-18);
    EXPECT_STREQ(pressure.GetUnitText(), "N/mm^2");
    EXPECT_STREQ(CGrandezza(1, 1, 1).GetUnitText(), "kN*m");
    EXPECT_STREQ(CGrandezza(1, -1, 0).GetUnitText(), "1/m");
    EXPECT_STREQ(CGrandezza(1).GetUnitText(), "");

    CGrandezza odd(0.1 + 0.2, 4, 1, Lunghezza::Feet, Forza::Pounds);
    odd.ChangeLunghezza(Lunghezza::Feet);
    odd.ChangeForza(Forza::Pounds);
    EXPECT_EQ(odd.GetValue(), 0.1 + 0.2);

    EXPECT_NEAR(CGrandezza::_ForceFactor(Forza::Tonnes, Forza::KiloNewtons), 9.80665, 1e-12);
    EXPECT_NEAR(CGrandezza::_ForceFactor(Forza::Kips, Forza::Newton), 4448.2216152605, 1e-9);
    EXPECT_NEAR(CGrandezza::_LengthFactor(Lunghezza::Feet, Lunghezza::Inches), 12, 1e-12);
    EXPECT_NEAR(CGrandezza::_Gravity(Lunghezza::Millimetres), 9806.65, 1e-9);
    EXPECT_STREQ(CGrandezza::_GetStringLunghezza(Lunghezza::Centimetres), "cm");
    EXPECT_STREQ(CGrandezza::_GetStringLunghezza(static_cast<Lunghezza>(-1)), "");
}

// Faults: a separator or a drive of another system looked for, a full stop in a folder taken for an extension, a hidden
// file without name.
TEST(PathTest, SplitsPaths) {
    const char* const cases[][4] = {{"/home/ing/v1.2/ponte.asg", "/home/ing/v1.2/", "ponte", ".asg"},
                                    {"/home/ing/v1.2/telaio", "/home/ing/v1.2/", "telaio", ""},
                                    {"C:\\lavori\\ponte.asg", "", "C:\\lavori\\ponte", ".asg"},
                                    {".nascosto", "", ".nascosto", ""},
                                    {"a.b.asg", "", "a.b", ".asg"}};
    for (const auto& [path, dir, name, ext] : cases) {
        CString parts[4] = {"x"};
        ASSERT_TRUE(SplitPath(path, &parts[0], &parts[1], &parts[2], &parts[3]));
        EXPECT_TRUE(parts[0] == "" && parts[1] == dir && parts[2] == name && parts[3] == ext) << path;
        EXPECT_TRUE(SplitPath(path, nullptr, nullptr, nullptr, nullptr));
    }
}

// Fault: a caption made of nothing. Failing leaves the outputs alone.
TEST(PathTest, RefusesPathsWithoutAFileName) {
    CString name = "prima";
    for (const char* path : {"", "/", "/home/ing/"})
        EXPECT_FALSE(SplitPath(path, nullptr, nullptr, &name, nullptr)) << path;
    EXPECT_STREQ(name, "prima");
}

// A folder and a mask put behind each other make the pattern again, so both parts keep all that they have.
TEST(PathTest, NamesTheParts) {
    EXPECT_STREQ(GetFileName("/a/b/ponte.asg"), "ponte.asg");
    EXPECT_STREQ(GetFileName("/a/b/"), "");
    EXPECT_STREQ(GetExtension("/a.b/ponte"), "");
    EXPECT_STREQ(GetExtension("ponte.asg"), ".asg");
    EXPECT_STREQ(GetFileDirectory("/a/b/*.asg"), "/a/b/");
    EXPECT_STREQ(GetFileDirectory("/ponte.asg"), "/");
    EXPECT_STREQ(GetFileDirectory("ponte.asg"), "");
    EXPECT_STREQ(ChangeExt("/a.b/ponte.asg", "inp"), "/a.b/ponte.inp");
    EXPECT_STREQ(ChangeExt("/a.b/ponte", ".inp"), "/a.b/ponte.inp");
    EXPECT_STREQ(ChangeExt("ponte.asg", ""), "ponte");
    EXPECT_STREQ(ChangeExt("/a.b/", "inp"), "/a.b/");
}

// Faults: a name with accents looked up in the wrong character set, a folder or a neighbour deleted by the pattern.
TEST(PathTest, WorksOnTheDisk) {
    const std::filesystem::path root =
        std::filesystem::temp_directory_path() / ("quovar_perché_" + std::to_string(getpid()));
    std::filesystem::create_directories(root / "ponte.d");
    const CString folder = CString::FromUtf8(root.string());
    for (const char* name : {"ponte.asg", "PONTE.inp", "ponte2.asg"})
        std::ofstream(root / name) << "x";

    EXPECT_TRUE(IsDirectory(folder));
    EXPECT_FALSE(IsDirectory(folder + "/ponte.asg"));
    EXPECT_FALSE(Del(folder));
    EXPECT_TRUE(Del(folder + "/ponte.*"));
    EXPECT_FALSE(Del(folder + "/ponte.*")); // nothing is left that it may delete
    EXPECT_FALSE(std::filesystem::exists(root / "ponte.asg") || std::filesystem::exists(root / "PONTE.inp"));
    EXPECT_TRUE(std::filesystem::exists(root / "ponte.d") && std::filesystem::exists(root / "ponte2.asg"));
    std::filesystem::remove_all(root);
    EXPECT_FALSE(IsDirectory(folder));
}

// Faults: the class lost from the framework's family, so that its handlers let it pass; the text cut without its end.
TEST(ExceptionExTest, IsOneOfTheFrameworksExceptions) {
    try {
        throw new CExceptionEx("fuori posto");
    } catch (CException* exception) {
        char text[6] = "xxxxx";
        EXPECT_TRUE(exception->IsKindOf(RUNTIME_CLASS(CExceptionEx)));
        EXPECT_TRUE(exception->GetErrorMessage(text, sizeof text));
        EXPECT_STREQ(text, "fuori");
        exception->Delete();
    }
}

} // namespace
