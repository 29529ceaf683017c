// The headless drawing back end: pixels, state, text, images, holders and the call log.
#include <climits>
#include <cstdio>
#include <fstream>
#include <iterator>
#include <limits>
#include <string>
#include <utility>
#include <vector>

#include <gtest/gtest.h>

#include "zebcore/debug/Debug.h"
#include "zebui/inkwell/BrushP.h"
#include "zebui/inkwell/FontP.h"
#include "zebui/inkwell/ImageInterface.h"
#include "zebui/inkwell/Inkwell.h"
#include "zebui/inkwell/PathP.h"
#include "zebui/inkwell/PenP.h"
#include "zebui/inkwell/ShaderInterface.h"
#include "zebui/inkwell/SurfaceP.h"
#include "zebui/inkwell/cairo/CairoLimits.h"
#include "zebui/inkwell/cairo/CairoPath.h"
#include "zebui/inkwell/cairo/CairoSupplier.h"
#include "zebui/inkwell/cairo/CairoSurface.h"
#include "zebui/ui/ThemeFonts.h"
#include "zebui/utils/DrawUtils.h"

namespace {

using zebcore::geom::MatrixT;
using zebcore::geom::PointT;
using zebcore::geom::RectT;
using namespace zebui::inkwell;

const ColorRGBA kRed(1, 0, 0, 1);
const ColorRGBA kBlue(0, 0, 1, 1);
const PixelRGBA kRedPixel{255, 0, 0, 255};
const PixelRGBA kBluePixel{0, 0, 255, 255};
const PixelRGBA kClear{0, 0, 0, 0};

class InkwellPlatformTest : public ::testing::Test {
protected:
    void SetUp() override { zebcore::debug::ClearRecordedAssertReports(); }

    boost::intrusive_ptr<CairoSurface> surface(int width, int height, bool opaque = false) {
        return boost::intrusive_ptr<CairoSurface>(
            mSupplier.MakeOffscreenCairoSurface(width, height, opaque));
    }
    boost::intrusive_ptr<PathInterface> path() {
        return boost::intrusive_ptr<PathInterface>(mSupplier.MakePath());
    }
    boost::intrusive_ptr<PenInterface> pen(const ColorRGBA& colour, float width) {
        return boost::intrusive_ptr<PenInterface>(mSupplier.MakePen(colour, width));
    }
    boost::intrusive_ptr<BrushInterface> brush(const ColorRGBA& colour) {
        return boost::intrusive_ptr<BrushInterface>(mSupplier.MakeBrush(colour));
    }
    boost::intrusive_ptr<FontInterface> font(float size) {
        const zebcore::UTF16String family = zebui::ui::GetFontName(0);
        return boost::intrusive_ptr<FontInterface>(mSupplier.MakeFont(
            reinterpret_cast<const unsigned short*>(family.c_str()), nullptr, size));
    }

    static bool inked(CairoSurface& target, int x, int y) {
        return target.ReadPixel(x, y)[3] > 127;
    }

    // First and last column with ink in any row, or (-1, -1).
    static std::pair<int, int> inkColumns(CairoSurface& target) {
        std::pair<int, int> columns(-1, -1);
        for (int x = 0; x < target.Width(); ++x)
            for (int y = 0; y < target.Height(); ++y)
                if (target.ReadPixel(x, y)[3] > 0) {
                    if (columns.first < 0) columns.first = x;
                    columns.second = x;
                    break;
                }
        return columns;
    }

    static int inkedPixels(CairoSurface& target) {
        int count = 0;
        for (int y = 0; y < target.Height(); ++y)
            for (int x = 0; x < target.Width(); ++x)
                if (target.ReadPixel(x, y)[3] > 0) ++count;
        return count;
    }

    static std::vector<std::string> reportMessages() {
        std::vector<std::string> messages;
        for (const auto& report : zebcore::debug::RecordedAssertReports())
            messages.push_back(report.message);
        return messages;
    }

    CairoSupplier mSupplier;
};

TEST_F(InkwellPlatformTest, PaintRectCoversWholePixelsAndBlends) {
    auto target = surface(10, 10);
    target->PaintRect(kRed, RectT<float>(2, 3, 4, 5));
    EXPECT_EQ(target->ReadPixel(2, 3), kRedPixel);
    EXPECT_EQ(target->ReadPixel(5, 7), kRedPixel);
    EXPECT_EQ(target->ReadPixel(6, 3), kClear);
    EXPECT_EQ(target->ReadPixel(2, 8), kClear);
    EXPECT_EQ(target->ReadPixel(-1, 0), kClear);

    target->PaintRect(ColorRGBA(0, 0, 1, 0.5f), RectT<float>(0, 0, 10, 10));
    const PixelRGBA blended = target->ReadPixel(3, 4);
    EXPECT_NEAR(blended[0], 128, 2);
    EXPECT_NEAR(blended[2], 128, 2);
    EXPECT_EQ(blended[3], 255);
    EXPECT_EQ(target->ReadPixel(0, 0)[3], 128);

    // An opaque surface has no alpha and starts black.
    auto opaque = surface(4, 4, true);
    EXPECT_EQ(opaque->ReadPixel(1, 1), (PixelRGBA{0, 0, 0, 255}));
    EXPECT_EQ(mSupplier.MakeOffscreenSurface(0, 5, false), nullptr);
}

TEST_F(InkwellPlatformTest, FillPathFlagChoosesWindingOrEvenOdd) {
    auto rings = path();
    rings->AddRect(RectT<float>(0, 0, 20, 20));
    rings->AddRect(RectT<float>(5, 5, 10, 10));
    auto red = brush(kRed);
    for (bool winding : {true, false}) {
        auto target = surface(20, 20);
        target->FillPath(*red, *rings, winding);
        EXPECT_EQ(target->ReadPixel(2, 2), kRedPixel);
        EXPECT_EQ(target->ReadPixel(10, 10), winding ? kRedPixel : kClear) << winding;
    }
}

TEST_F(InkwellPlatformTest, StrokeWidthCapsDashesAndJoinsShowInPixels) {
    auto line = path();
    line->MoveTo(PointT<float>(4, 10));
    line->LineTo(PointT<float>(36, 10));
    auto ink = pen(kBlue, 4);
    EXPECT_EQ(ink->GetLineCap(), kLineCapType_Flat);
    EXPECT_EQ(ink->GetLineJoin(), kLineJoinType_Miter);
    EXPECT_EQ(ink->GetMiterLimit(), 10.0f);

    auto stroke = [&]() {
        auto target = surface(40, 20);
        target->StrokePath(*ink, *line);
        return target;
    };
    auto flat = stroke();
    EXPECT_TRUE(inked(*flat, 4, 8) && inked(*flat, 4, 11));
    EXPECT_FALSE(inked(*flat, 4, 7) || inked(*flat, 4, 12) || inked(*flat, 3, 10));
    ink->SetLineCap(kLineCapType_Square);
    EXPECT_TRUE(inked(*stroke(), 2, 10));
    ink->SetLineCap(kLineCapType_Round);
    EXPECT_TRUE(inked(*stroke(), 2, 10));
    EXPECT_FALSE(inked(*stroke(), 2, 8));
    ink->SetLineCap(static_cast<LineCapType>(7));
    EXPECT_EQ(ink->GetLineCap(), kLineCapType_Round);

    ink->SetLineCap(kLineCapType_Flat);
    const float dashes[] = {4, 4};
    ink->SetDashPattern(dashes, 2);
    auto dashed = stroke();
    EXPECT_TRUE(inked(*dashed, 5, 10));
    EXPECT_FALSE(inked(*dashed, 9, 10));
    EXPECT_TRUE(inked(*dashed, 13, 10));
    ink->SetDashPattern(nullptr, 0);
    EXPECT_TRUE(inked(*stroke(), 9, 10));
    // Patterns Cairo refuses give a solid line and leave the surface usable.
    const float refused[][2] = {{-1, 4}, {0, 0}};
    for (const auto& pattern : refused) {
        ink->SetDashPattern(pattern, 2);
        EXPECT_TRUE(inked(*stroke(), 9, 10));
    }

    // A right-angled corner at (30, 10) with the line 8 wide: the miter reaches 5.7 above
    // the apex, a round join 4, a bevel 2.8.
    auto corner = path();
    corner->MoveTo(PointT<float>(10, 30));
    corner->LineTo(PointT<float>(30, 10));
    corner->LineTo(PointT<float>(50, 30));
    auto thick = pen(kBlue, 8);
    auto joined = [&](LineJoinType join) {
        thick->SetLineJoin(join);
        auto target = surface(60, 40);
        target->SetAntiAliasPolicy(kAntiAliasPolicy_None);
        target->StrokePath(*thick, *corner);
        return std::make_pair(inked(*target, 30, 5), inked(*target, 30, 6));
    };
    EXPECT_EQ(joined(kLineJoinType_Miter), std::make_pair(true, true));
    EXPECT_EQ(joined(kLineJoinType_Round), std::make_pair(false, true));
    EXPECT_EQ(joined(kLineJoinType_Bevel), std::make_pair(false, false));
    thick->SetLineJoin(kLineJoinType_Miter);
    thick->SetMiterLimit(1.0f);
    EXPECT_FALSE(inked(
        *[&] {
            auto target = surface(60, 40);
            target->StrokePath(*thick, *corner);
            return target;
        }(),
        30, 5));
}

// An arc after a closed subpath starts a subpath of its own: no line joins them.
TEST_F(InkwellPlatformTest, AnArcAfterAClosedSubpathStartsItsOwn) {
    auto separate = path();
    separate->AddRect(RectT<float>(0, 0, 4, 4));
    separate->AddArc(PointT<float>(30, 30), 4, 0, 360);
    auto target = surface(40, 40);
    target->StrokePath(*pen(kRed, 2), *separate);
    EXPECT_FALSE(inked(*target, 15, 15));
    EXPECT_TRUE(inked(*target, 34, 30));
}

TEST_F(InkwellPlatformTest, ClipBoundsFollowClipAndTransform) {
    auto target = surface(100, 80);
    EXPECT_EQ(target->GetClipBounds(), RectT<int>(0, 0, 100, 80));
    auto area = path();
    area->AddRect(RectT<float>(10.5f, 20, 30, 40));
    target->Clip(*area, true);
    EXPECT_EQ(target->GetClipBounds(), RectT<int>(10, 20, 31, 40));

    // The edges: a corner pixel shared, a column just beside, an empty rect, all of it.
    const struct {
        RectT<int> rect;
        bool within;
    } cases[] = {{RectT<int>(0, 0, 11, 21), true},
                 {RectT<int>(0, 0, 10, 80), false},
                 {RectT<int>(15, 25, 0, 5), false},
                 {RectT<int>(0, 0, 100, 80), true}};
    for (const auto& c : cases)
        EXPECT_EQ(target->IsWithinClipBounds(c.rect), c.within)
            << c.rect.left << "," << c.rect.top << "," << c.rect.width << "," << c.rect.height;

    target->Transform(MatrixT<float>::Translation(5, 10));
    EXPECT_EQ(target->GetClipBounds(), RectT<int>(5, 10, 31, 40));
    target->PaintRect(kRed, RectT<float>(-10, -10, 200, 200));
    EXPECT_EQ(target->ReadPixel(9, 30), kClear);
    EXPECT_EQ(target->ReadPixel(10, 30)[0], 255);
    EXPECT_EQ(target->ReadPixel(41, 59), kClear);

    // Under a tiny scale the bounds in user space run beyond int and stop at its ends.
    auto tiny = surface(10, 10);
    tiny->Transform(MatrixT<float>::Scale(1e-15f, 1e-15f));
    EXPECT_EQ(tiny->GetClipBounds(), RectT<int>(0, 0, INT_MAX, INT_MAX));
}

TEST_F(InkwellPlatformTest, StateStackRestoresTransformClipAndPolicy) {
    auto target = surface(50, 50);
    target->PushStateStack();
    target->Transform(MatrixT<float>(2, 0, 10, 0, 3, 20, 0, 0, 1));
    auto area = path();
    area->AddRect(RectT<float>(0, 0, 5, 5));
    target->Clip(*area, true);
    target->SetAntiAliasPolicy(kAntiAliasPolicy_None);
    EXPECT_EQ(target->GetClipBounds(), RectT<int>(0, 0, 5, 5));
    target->PaintRect(kRed, RectT<float>(0, 0, 1, 1));
    EXPECT_EQ(target->ReadPixel(10, 20), kRedPixel);
    EXPECT_EQ(target->ReadPixel(11, 22), kRedPixel);
    target->PopStateStack();

    MatrixT<float> after;
    target->GetTransform(after);
    EXPECT_EQ(after, MatrixT<float>());
    EXPECT_EQ(target->GetClipBounds(), RectT<int>(0, 0, 50, 50));
    EXPECT_EQ(target->GetAntiAliasPolicy(), kAntiAliasPolicy_High);

    // A pop too many and a singular matrix are reported and ignored; drawing goes on.
    target->PopStateStack();
    target->Transform(MatrixT<float>::Scale(0, 1));
    // Cairo keeps affine terms only: the third row is dropped.
    target->Transform(MatrixT<float>(1, 0, 0, 0, 1, 0, 0.5f, 0.5f, 2));
    target->GetTransform(after);
    EXPECT_EQ(after, MatrixT<float>());
    target->PaintRect(kBlue, RectT<float>(40, 40, 2, 2));
    EXPECT_EQ(target->ReadPixel(41, 41), kBluePixel);
    EXPECT_EQ(reportMessages(),
              (std::vector<std::string>{"PopStateStack without PushStateStack",
                                        "Transform with a matrix that cannot be inverted"}));
}

// Cairo ends a context for good on some values; a script must not be able to do that.
TEST_F(InkwellPlatformTest, HostileValuesNeverEndTheSurface) {
    const float inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    auto target = surface(10, 10);
    auto image = surface(2, 2)->GetSurfaceImage();
    auto line = path();
    line->MoveTo(PointT<float>(0, 0));
    line->LineTo(PointT<float>(9, 9));
    target->DrawImage(*image, PointT<float>(inf, 0), 1.0f);
    target->DrawImage2(nullptr, *image, RectT<float>(0, 0, 1e30f, 1), nullptr, 1.0f);
    const RectT<float> tiny(0, 0, 1e-30f, 1);
    target->DrawImage2(nullptr, *image, RectT<float>(nan, 0, 4, 4), &tiny, 1.0f);
    boost::intrusive_ptr<ShaderInterface> broken(
        mSupplier.MakeRadialShader(PointT<float>(0, 0), PointT<float>(nan, 0), kRed, kBlue));
    target->ShadePath(*broken, *line, true);
    target->StrokePath(*pen(kRed, -3), *line);
    target->Transform(MatrixT<float>(nan, 0, 0, 0, 1, 0, 0, 0, 1));
    auto dashed = pen(kRed, 1);
    const float zeros[] = {0, 0, 0};
    dashed->SetDashPattern(zeros, 3);
    target->StrokePath(*dashed, *line);
    target->PopStateStack();
    auto huge = font(1e30f);
    target->DrawString(*brush(kRed), *huge, u"Hi", PointT<float>(inf, 0), kTextAlignment_Center,
                       kTextTruncation_End, 5);
    EXPECT_GT(huge->MeasureText(u"Hi", -1), 0.0f);
    EXPECT_LT(huge->MeasureText(u"Hi", -1), 1e5f);

    target->PaintRect(kBlue, RectT<float>(0, 0, 10, 10));
    EXPECT_EQ(target->ReadPixel(5, 2), kBluePixel);
}

// A source rectangle reaching past the image used to sample memory beyond its pixels. Only
// its part inside the image is drawn, onto the part of the destination it maps to.
TEST_F(InkwellPlatformTest, DrawImage2ClipsTheSourceRectangleToTheImage) {
    auto red = surface(4, 4);
    red->PaintRect(kRed, RectT<float>(0, 0, 4, 4));
    const auto image = red->GetSurfaceImage();
    auto target = surface(10, 10);
    const RectT<float> farAway(1e6f, 1e6f, 8, 8);
    target->DrawImage2(nullptr, *image, RectT<float>(0, 0, 8, 8), &farAway, 1.0f);
    EXPECT_EQ(inkedPixels(*target), 0);
    // (2, 2, 4, 4) at scale 2: its inside half, (2, 2, 2, 2), lands on (0, 0, 4, 4).
    const RectT<float> overTheEdge(2, 2, 4, 4);
    target->DrawImage2(nullptr, *image, RectT<float>(0, 0, 8, 8), &overTheEdge, 1.0f);
    EXPECT_EQ(target->ReadPixel(3, 3), kRedPixel);
    EXPECT_EQ(target->ReadPixel(4, 4), kClear);
    // Before the image's origin: (-2, -2, 4, 4) keeps (0, 0, 2, 2), drawn at (2, 2).
    auto shifted = surface(10, 10);
    const RectT<float> beforeTheOrigin(-2, -2, 4, 4);
    shifted->DrawImage2(nullptr, *image, RectT<float>(0, 0, 4, 4), &beforeTheOrigin, 1.0f);
    EXPECT_EQ(shifted->ReadPixel(1, 1), kClear);
    EXPECT_EQ(shifted->ReadPixel(2, 2), kRedPixel);
    EXPECT_EQ(shifted->ReadPixel(3, 3), kRedPixel);
    EXPECT_EQ(shifted->ReadPixel(4, 4), kClear);
    EXPECT_TRUE(reportMessages().empty());
}

// Cairo aborts on a NaN angle, hangs on an infinite radius or width and takes minutes over
// a huge sweep. Non-finite geometry is reported and draws nothing; a sweep of many turns
// draws one; absurd sizes, lengths and int rectangles are narrowed before Cairo or int
// arithmetic sees them.
TEST_F(InkwellPlatformTest, NonFiniteGeometryIsReportedAndDrawsNothing) {
    const float inf = std::numeric_limits<float>::infinity();
    const float nan = std::numeric_limits<float>::quiet_NaN();
    auto target = surface(10, 10);
    auto fill = brush(kRed);
    const std::vector<std::pair<float, float>> badArcs = {{nan, 0}, {4, nan}, {inf, 0}, {4, inf}};
    for (const auto& [radius, angle] : badArcs) {
        auto arc = path();
        arc->AddArc(PointT<float>(5, 5), radius, angle, 90);
        target->FillPath(*fill, *arc, true);
        target->StrokePath(*pen(kRed, 2), *arc);
        target->Clip(*arc, true);
    }
    target->PaintRect(kRed, RectT<float>(0, nan, 10, 10));
    auto line = path();
    line->MoveTo(PointT<float>(0, 5));
    line->LineTo(PointT<float>(10, 5));
    target->StrokePath(*pen(kRed, inf), *line);
    target->StrokePath(*pen(kRed, nan), *line);
    const ColorRGBA colours[] = {kRed, kBlue};
    const float stops[] = {0, nan};
    boost::intrusive_ptr<ShaderInterface> badStops(
        mSupplier.MakeLinearShader(PointT<float>(0, 0), PointT<float>(10, 0), colours, stops, 2));
    target->ShadePath(*badStops, *line, true);
    EXPECT_EQ(inkedPixels(*target), 0);
    EXPECT_EQ(reportMessages().size(), 16u);
    EXPECT_EQ(target->GetClipBounds(), RectT<int>(0, 0, 10, 10));  // no clip was taken

    // A billion degrees is one turn, drawn at once; a huge radius covers the surface.
    auto circle = path();
    circle->AddArc(PointT<float>(5, 5), 4, 0, 1e9f);
    target->FillPath(*fill, *circle, true);
    EXPECT_EQ(target->ReadPixel(5, 5), kRedPixel);
    EXPECT_EQ(target->ReadPixel(0, 0), kClear);
    auto huge = path();
    huge->AddArc(PointT<float>(5, 5), 1e30f, 0, 360);
    auto covered = surface(10, 10);
    covered->FillPath(*fill, *huge, true);
    EXPECT_EQ(covered->ReadPixel(0, 0), kRedPixel);

    // Text past the longest drawn length measures as that length does.
    const zebcore::UTF16String longest(kLongestText, u'x');
    auto text = font(10);
    EXPECT_EQ(text->MeasureText(longest + u"xxxx", -1), text->MeasureText(longest, -1));

    // int rectangles that end beyond the int range, and surfaces beyond the pixel limit.
    const int top = std::numeric_limits<int>::max() - 1;
    EXPECT_FALSE(target->IsWithinClipBounds(RectT<int>(top, 0, 10, 10)));
    const RectT<int> beyond(top, top, 10, 10);
    boost::intrusive_ptr<CairoSurface> part(
        mSupplier.MakeCairoSurface(target.get(), false, &beyond));
    EXPECT_EQ(part->Width(), 0);
    zebcore::debug::ClearRecordedAssertReports();
    EXPECT_FALSE(surface(16384, 16384));
    EXPECT_TRUE(surface(32767, 2));
    EXPECT_EQ(reportMessages(),
              std::vector<std::string>{"offscreen surface larger than the image limit"});
}

// The size is read from the PNG header: a small file that would decode to gigabytes is
// refused with a report before any decoding.
TEST_F(InkwellPlatformTest, APngLargerThanTheImageLimitIsRefusedFromItsHeader) {
    std::vector<unsigned char> bytes = {0x89, 'P', 'N',  'G',  '\r', '\n', 0x1a, '\n', 0,    0,
                                        0,    13,  'I',  'H',  'D',  'R',  0,    0,    0x4e, 0x20,
                                        0,    0,   0x4e, 0x20, 8,    6,    0,    0,    0};
    EXPECT_FALSE(mSupplier.MakeImageFromPNG(bytes.data(), bytes.size()));
    EXPECT_EQ(reportMessages(),
              std::vector<std::string>{"PNG image larger than the decoded image limit"});
}

TEST_F(InkwellPlatformTest, AntiAliasPolicyTakesOnlyItsThreeValues) {
    auto target = surface(20, 20);
    EXPECT_EQ(target->GetAntiAliasPolicy(), kAntiAliasPolicy_High);
    target->SetAntiAliasPolicy(kAntiAliasPolicy_Med);
    for (int ignored : {3, -1}) {
        target->SetAntiAliasPolicy(ignored);
        EXPECT_EQ(target->GetAntiAliasPolicy(), kAntiAliasPolicy_Med);
    }

    // A diagonal edge: partly covered pixels only with anti-aliasing.
    auto triangle = path();
    triangle->MoveTo(PointT<float>(0, 0));
    triangle->LineTo(PointT<float>(20, 0));
    triangle->LineTo(PointT<float>(0, 13));
    triangle->ClosePath();
    auto partlyCovered = [&](int policy) {
        auto canvas = surface(20, 20);
        canvas->SetAntiAliasPolicy(policy);
        canvas->FillPath(*brush(kRed), *triangle, true);
        int count = 0;
        for (int y = 0; y < 20; ++y)
            for (int x = 0; x < 20; ++x) {
                const int alpha = canvas->ReadPixel(x, y)[3];
                count += alpha > 0 && alpha < 255;
            }
        return count;
    };
    EXPECT_EQ(partlyCovered(kAntiAliasPolicy_None), 0);
    EXPECT_GT(partlyCovered(kAntiAliasPolicy_High), 10);
}

TEST_F(InkwellPlatformTest, TextMeasuresStablyAndGrowsWithText) {
    auto normal = font(12);
    const zebcore::UTF16String text = u"Headless text";
    EXPECT_EQ(normal->MeasureText(u"", -1), 0.0f);
    float previous = 0.0f;
    for (size_t length = 1; length <= text.size(); ++length) {
        const float width = normal->MeasureText(text, static_cast<int>(length));
        EXPECT_GT(width, previous) << length;
        EXPECT_EQ(width, normal->MeasureText(text.substr(0, length), -1));
        previous = width;
    }
    EXPECT_EQ(normal->MeasureText(text, 999), previous);
    EXPECT_GT(previous, 60.0f);
    EXPECT_LT(previous, 110.0f);

    auto target = surface(10, 10);
    target->Transform(MatrixT<float>::Scale(3, 3));
    EXPECT_EQ(target->MeasureStringWidth(*normal, text, -1), previous);
}

TEST_F(InkwellPlatformTest, TextAlignmentAndTruncationPlaceInk) {
    auto black = brush(ColorRGBA());
    auto normal = font(12);
    const zebcore::UTF16String word = u"Hello";
    const float wordWidth = normal->MeasureText(word, -1);
    auto drawn = [&](const zebcore::UTF16String& text, float x, TextAlignment alignment,
                     TextTruncation truncation, float width) {
        auto target = surface(200, 20);
        target->DrawString(*black, *normal, text, PointT<float>(x, 2), alignment, truncation,
                           width);
        return inkColumns(*target);
    };
    const auto left = drawn(word, 20, kTextAlignment_Left, kTextTruncation_None, 160);
    EXPECT_GE(left.first, 20);
    EXPECT_LE(left.first, 23);
    const auto centre = drawn(word, 20, kTextAlignment_Center, kTextTruncation_None, 160);
    EXPECT_NEAR((centre.first + centre.second) / 2.0, 100.0, 3.0);
    const auto right = drawn(word, 20, kTextAlignment_Right, kTextTruncation_None, 160);
    EXPECT_LE(right.second, 180);
    EXPECT_GE(right.second, 176);
    EXPECT_NEAR(right.first, 180 - wordWidth, 3.0);
    // Without a width the point is the right end of the text.
    const auto anchored = drawn(word, 100, kTextAlignment_Right, kTextTruncation_None, 0);
    EXPECT_NEAR(anchored.second, 100, 3.0);
    const auto top = [&]() {
        auto target = surface(60, 40);
        target->DrawString(*black, *normal, u"H", PointT<float>(0, 20), kTextAlignment_Left,
                           kTextTruncation_None, 0);
        for (int y = 0; y < 40; ++y)
            for (int x = 0; x < 60; ++x)
                if (target->ReadPixel(x, y)[3] > 0) return y;
        return -1;
    }();
    EXPECT_GE(top, 20);
    EXPECT_LE(top, 25);

    const zebcore::UTF16String longText = u"A rather long line of text that will not fit";
    EXPECT_GT(drawn(longText, 10, kTextAlignment_Left, kTextTruncation_None, 60).second, 150);
    for (TextTruncation truncation :
         {kTextTruncation_End, kTextTruncation_EndEllipsis, kTextTruncation_PathEllipsis}) {
        // Cut text keeps its beginning in view even when aligned right.
        const auto cut = drawn(longText, 10, kTextAlignment_Right, truncation, 60);
        EXPECT_GE(cut.first, 10) << truncation;
        EXPECT_LE(cut.first, 13) << truncation;
        EXPECT_LE(cut.second, 70) << truncation;
        EXPECT_GE(cut.second, 55) << truncation;
    }
}

TEST_F(InkwellPlatformTest, PngBytesDecodeIntoAnImage) {
    auto source = surface(3, 2);
    source->PaintRect(kRed, RectT<float>(0, 0, 1, 2));
    source->PaintRect(ColorRGBA(0, 0, 1, 0.5f), RectT<float>(2, 0, 1, 2));
    const std::string file = ::testing::TempDir() + "inkwell_platform_test.png";
    ASSERT_TRUE(source->WritePNG(file));
    std::ifstream in(file, std::ios::binary);
    const std::vector<unsigned char> bytes((std::istreambuf_iterator<char>(in)),
                                           std::istreambuf_iterator<char>());
    std::remove(file.c_str());
    ASSERT_GT(bytes.size(), 8u);

    boost::intrusive_ptr<ImageInterface> image =
        mSupplier.MakeImageFromPNG(bytes.data(), bytes.size());
    ASSERT_TRUE(image);
    EXPECT_EQ(image->GetWidth(), 3);
    EXPECT_EQ(image->GetHeight(), 2);
    auto target = surface(3, 2);
    target->DrawImage(*image, PointT<float>(0, 0), 1.0f);
    EXPECT_EQ(target->ReadPixel(0, 1), kRedPixel);
    EXPECT_EQ(target->ReadPixel(1, 1), kClear);
    EXPECT_EQ(target->ReadPixel(2, 0), (PixelRGBA{0, 0, 255, 128}));

    EXPECT_FALSE(mSupplier.MakeImageFromPNG(bytes.data(), bytes.size() / 2));
    const unsigned char notPng[] = "GIF89a........";
    EXPECT_FALSE(mSupplier.MakeImageFromPNG(notPng, sizeof notPng));
    EXPECT_FALSE(source->WritePNG("/nonexistent-folder/x.png"));
}

// A supplier whose paths tell when they die, and which can hand out one path twice.
class TrackingSupplier : public CairoSupplier {
public:
    struct TrackedPath : CairoPath {
        explicit TrackedPath(int* deaths) : mDeaths(deaths) {}
        ~TrackedPath() override { ++*mDeaths; }
        int* mDeaths;
    };
    PathInterface* MakePath() const override {
        return mRepeat ? mRepeat : new TrackedPath(&mDeaths);
    }
    mutable int mDeaths = 0;
    PathInterface* mRepeat = nullptr;
};

TEST_F(InkwellPlatformTest, HoldersCountReferencesAndReportAMissingSupplier) {
    TrackingSupplier tracking;
    {
        PathP holder(&tracking);
        PathInterface* first = holder.mScPtr.get();
        ASSERT_NE(first, nullptr);
        EXPECT_EQ(first->GetReferenceCount(), 1);
        {
            boost::intrusive_ptr<PathInterface> shared = holder.mScPtr;
            holder.New(&tracking);
            EXPECT_EQ(tracking.mDeaths, 0);
            EXPECT_EQ(shared->GetReferenceCount(), 1);
        }
        EXPECT_EQ(tracking.mDeaths, 1);

        // The same object again changes nothing: it is neither counted twice nor lost.
        tracking.mRepeat = holder.mScPtr.get();
        holder.New(&tracking);
        EXPECT_EQ(holder.mScPtr.get(), tracking.mRepeat);
        EXPECT_EQ(holder->GetReferenceCount(), 1);
        EXPECT_EQ(tracking.mDeaths, 1);

        // No supplier: a report, and the held path stays.
        holder.New(nullptr);
        EXPECT_EQ(holder.mScPtr.get(), tracking.mRepeat);
    }
    EXPECT_EQ(tracking.mDeaths, 2);

    zebcore::debug::ClearRecordedAssertReports();
    PenP pen(nullptr, kRed, 1);
    BrushP brushHolder(nullptr, kRed);
    FontP fontHolder(nullptr, nullptr, nullptr, 12);
    SurfaceP surfaceHolder(nullptr, nullptr, true, nullptr);
    for (const auto& report : zebcore::debug::RecordedAssertReports()) {
        EXPECT_EQ(report.expression, "supplierP");
        EXPECT_EQ(report.message, "supplierP");
    }
    EXPECT_EQ(zebcore::debug::RecordedAssertReports().size(), 4u);
    EXPECT_FALSE(pen.mScPtr || brushHolder.mScPtr || fontHolder.mScPtr || surfaceHolder.mScPtr);

    zebcore::debug::ClearRecordedAssertReports();
    EXPECT_EQ(pen.operator->(), nullptr);
    ASSERT_EQ(zebcore::debug::RecordedAssertReports().size(), 1u);
    const auto& report = zebcore::debug::RecordedAssertReports()[0];
    EXPECT_EQ(report.expression, "mScPtr.get() != 0");
    EXPECT_EQ(report.file, "../../../zebui/utility/PImpl.h");
}

TEST_F(InkwellPlatformTest, SurfaceOverSurfaceSharesPixels) {
    auto parent = surface(40, 40);
    const RectT<int> area(10, 10, 20, 20);
    SurfaceP child(&mSupplier, parent.get(), false, &area);
    ASSERT_TRUE(child.mScPtr);
    EXPECT_EQ(child->GetSupplier(), &mSupplier);
    EXPECT_EQ(child->GetClipBounds(), RectT<int>(0, 0, 20, 20));
    child->PaintRect(kRed, RectT<float>(-5, -5, 10, 100));
    EXPECT_EQ(parent->ReadPixel(10, 10), kRedPixel);
    EXPECT_EQ(parent->ReadPixel(14, 29), kRedPixel);
    EXPECT_EQ(parent->ReadPixel(9, 10), kClear);
    EXPECT_EQ(parent->ReadPixel(12, 30), kClear);

    // Inheriting starts from the parent's transform and clip, moved to the new origin.
    parent->Transform(MatrixT<float>::Translation(15, 15));
    auto clip = path();
    clip->AddRect(RectT<float>(0, 0, 10, 10));
    parent->Clip(*clip, true);
    SurfaceP inheriting(&mSupplier, parent.get(), true, &area);
    EXPECT_EQ(inheriting->GetClipBounds(), RectT<int>(0, 0, 10, 10));
    MatrixT<float> matrix;
    inheriting->GetTransform(matrix);
    EXPECT_EQ(matrix, MatrixT<float>::Translation(5, 5));
    SurfaceP whole(&mSupplier, parent.get(), true, nullptr);
    EXPECT_EQ(whole->GetClipBounds(), parent->GetClipBounds());
}

TEST_F(InkwellPlatformTest, ShadersGradeAlongTheirGeometry) {
    auto band = path();
    band->AddRect(RectT<float>(0, 0, 100, 100));
    const ColorRGBA colours[] = {kRed, kBlue};
    const float stops[] = {0.0f, 1.0f};
    boost::intrusive_ptr<ShaderInterface> linear(
        mSupplier.MakeLinearShader(PointT<float>(10, 0), PointT<float>(90, 0), colours, stops, 2));
    auto target = surface(100, 100);
    target->ShadePath(*linear, *band, true);
    EXPECT_EQ(target->ReadPixel(5, 50), kRedPixel);
    EXPECT_EQ(target->ReadPixel(95, 50), kBluePixel);
    EXPECT_NEAR(target->ReadPixel(50, 50)[0], 128, 3);

    // Centre at the first point, radius the distance to the second.
    boost::intrusive_ptr<ShaderInterface> radial(mSupplier.MakeRadialShader(
        PointT<float>(50, 50), PointT<float>(50, 90), ColorRGBA(1, 1, 1, 1), kBlue));
    target->ShadePath(*radial, *band, true);
    EXPECT_GE(target->ReadPixel(50, 50)[0], 248);
    EXPECT_NEAR(target->ReadPixel(70, 50)[0], 128, 5);
    EXPECT_EQ(target->ReadPixel(95, 50), kBluePixel);
}

// All corners and the outline through the surface methods are SurfaceApiTest's; here, one
// corner rounded alone.
TEST_F(InkwellPlatformTest, ARoundedFillRoundsOnlyTheCornersAskedFor) {
    auto target = surface(30, 30);
    Inkwell inkwell(&mSupplier, target.get());
    zebui::utils::DrawRoundedFill(&inkwell, RectT<float>(0, 20, 10, 10), kBlue, 5,
                                  zebui::utils::kTopLeftCorner);
    EXPECT_EQ(target->ReadPixel(0, 20), kClear);
    EXPECT_EQ(target->ReadPixel(9, 20), kBluePixel);
    EXPECT_EQ(target->ReadPixel(0, 29), kBluePixel);
}

TEST_F(InkwellPlatformTest, CallLogPinsArgumentsInOrder) {
    auto target = surface(40, 20);
    target->SetCallLogEnabled(true);
    target->PaintRect(ColorRGBA(1, 0.5f, 0, 1), RectT<float>(1, 2, 3, 4));
    auto arc = path();
    arc->AddArc(PointT<float>(5, 5), 2, 0, 360);
    auto dashed = pen(kBlue, 2);
    const float dashes[] = {3, 1};
    dashed->SetDashPattern(dashes, 2);
    dashed->SetLineCap(kLineCapType_Square);
    target->StrokePath(*dashed, *arc);
    auto image = target->GetSurfaceImage();
    target->DrawImage2(nullptr, *image, RectT<float>(0, 0, 4, 4), nullptr, 0.25f);
    target->SetAntiAliasPolicy(7);
    EXPECT_EQ(target->CallLog(),
              (std::vector<std::string>{
                  "PaintRect(colour=(1,0.5,0,1), rect=(1,2,3,4))",
                  "StrokePath(pen=(colour=(0,0,1,1), width=2, miterLimit=10, join=0, cap=2, "
                  "dashes=(3,1)), path=[A(5,5,2,0,360)])",
                  "GetSurfaceImage()",
                  "DrawImage2(supplier=null, image=40x20, destRect=(0,0,4,4), srcRect=null, "
                  "opacity=0.25)",
                  "SetAntiAliasPolicy(7)",
              }));
    target->ClearCallLog();
    target->SetCallLogEnabled(false);
    target->Flush();
    EXPECT_TRUE(target->CallLog().empty());
}

}  // namespace
