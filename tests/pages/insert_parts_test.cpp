// Conversion of insertions to and from their parts.

#include <gtest/gtest.h>

#include <array>
#include <cmath>
#include <random>

#include "orlo/host/host.h"
#include "orlo/pages/insert_parts.h"

namespace {

constexpr double kPi = 3.141592653589793;

using Corners = std::array<std::array<double, 3>, 4>;

class InsertPartsTest : public ::testing::Test {
protected:
    ~InsertPartsTest() override { ::GraphicDispose(&m_graphic); }

    Corners Get() const {
        Corners corners{};
        size_t i = 0;
        for (const VertexStruct* vertex : orlo::host::Vertices(m_graphic))
            corners.at(i++) = {vertex->x, vertex->y, vertex->z};
        return corners;
    }
    void Set(const Corners& corners) {
        size_t i = 0;
        for (VertexStruct* vertex : orlo::host::Vertices(m_graphic)) {
            const auto& corner = corners.at(i++);
            ::VertexSet(vertex, corner[0], corner[1], corner[2]);
        }
    }
    // Axes around the point (10, 20, 30).
    void SetAxes(std::array<double, 3> a, std::array<double, 3> b, std::array<double, 3> c) {
        Corners corners;
        corners.fill({10, 20, 30});
        const std::array<double, 3> axes[] = {a, b, c};
        for (size_t i = 0; i < 3; ++i)
            for (size_t k = 0; k < 3; ++k)
                corners[i + 1][k] += axes[i][k];
        Set(corners);
    }
    void ExpectCorners(const Corners& expected, double tolerance) const {
        const Corners corners = Get();
        for (size_t i = 0; i < 4; ++i)
            for (size_t k = 0; k < 3; ++k)
                ASSERT_NEAR(expected[i][k], corners[i][k], tolerance) << "corner " << i << " axis " << k;
    }

    GraphicStruct* m_graphic = ::GraphicNewEx(kGraphicInsert, 0, 1);
};

// Any orthogonal axes, including mirrored ones: parts and vertices are restored from each other.
TEST_F(InsertPartsTest, RandomTransformationsAreRestored) {
    std::mt19937_64 random(17);
    std::uniform_real_distribution<double> angle(-kPi, kPi), exponent(-3, 3), place(-100, 100);
    for (int i = 0; i < 20000; ++i) {
        InsertParts parts;
        double largest = 100;
        for (int k = 0; k < 3; ++k) {
            parts.position[k] = place(random);
            parts.scale[k] = std::pow(10, exponent(random)) * (random() % 2 ? 1 : -1);
            parts.rotation[k] = random() % 8 ? angle(random) : kPi / 2 * static_cast<double>(random() % 4);
            largest = std::max(largest, std::fabs(parts.scale[k]));
        }
        ::InsertSetParts(m_graphic, &parts);
        const Corners corners = Get();
        InsertParts found;
        ASSERT_TRUE(ReadInsertParts(m_graphic, found));
        ASSERT_GT(found.scale[0], 0);
        ASSERT_GT(found.scale[1], 0);
        ASSERT_EQ(parts.scale[0] * parts.scale[1] * parts.scale[2] < 0, found.scale[2] < 0);
        ::InsertSetParts(m_graphic, &found);
        ExpectCorners(corners, 1e-9 * largest);
        InsertParts again;
        ASSERT_TRUE(ReadInsertParts(m_graphic, again));
        for (int k = 0; k < 3; ++k) {
            ASSERT_NEAR(found.position[k], again.position[k], 1e-9 * largest);
            ASSERT_NEAR(found.scale[k] / again.scale[k], 1, 1e-9);
        }
    }
}

TEST_F(InsertPartsTest, KnownAxesHaveKnownParts) {
    const struct {
        std::array<double, 3> a, b, c;
        std::array<double, 3> scale, rotation;
    } kRows[] = {{{1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, 1}, {0, 0, 0}},
                 {{0, 2, 0}, {-3, 0, 0}, {0, 0, 4}, {2, 3, 4}, {0, 0, kPi / 2}},
                 {{1, 0, 0}, {0, 0, 1}, {0, -1, 0}, {1, 1, 1}, {kPi / 2, 0, 0}},
                 {{0, 0, -1}, {0, 1, 0}, {1, 0, 0}, {1, 1, 1}, {0, kPi / 2, 0}},
                 {{0, 1, 0}, {0, 0, 1}, {1, 0, 0}, {1, 1, 1}, {0, kPi / 2, kPi / 2}}, // gimbal lock: x is 0
                 {{-1, 0, 0}, {0, 1, 0}, {0, 0, 1}, {1, 1, -1}, {kPi, 0, kPi}},       // the mirroring is in z
                 {{1, 0, 0}, {0, 1, 0}, {0, 0, -1}, {1, 1, -1}, {0, 0, 0}}};
    for (const auto& row : kRows) {
        SetAxes(row.a, row.b, row.c);
        InsertParts parts;
        ::InsertGetParts(m_graphic, &parts);
        EXPECT_EQ(parts.position[0], 10);
        EXPECT_EQ(parts.position[2], 30);
        for (int k = 0; k < 3; ++k) {
            EXPECT_NEAR(row.scale[k], parts.scale[k], 1e-12);
            EXPECT_NEAR(row.rotation[k], parts.rotation[k], 1e-12) << &row - kRows << " about " << k;
        }
        const Corners corners = Get();
        ::InsertSetParts(m_graphic, &parts);
        ExpectCorners(corners, 1e-12);
    }
}

// One or more axes may have no length: the others determine the rotation, and rotating back and forth does not change
// it.
TEST_F(InsertPartsTest, CollapsedAxesDoNotAffectTheOthers) {
    std::mt19937_64 random(23);
    std::uniform_real_distribution<double> angle(-kPi, kPi);
    for (int missing = 0; missing < 8; ++missing)
        for (int i = 0; i < 500; ++i) {
            InsertParts parts = {{1, 2, 3}, {2, 3, 4}, {angle(random), angle(random), angle(random)}};
            for (int k = 0; k < 3; ++k)
                if (missing & 1 << k) parts.scale[k] = 0;
            ::InsertSetParts(m_graphic, &parts);
            const Corners corners = Get();
            InsertParts found, untouched = {{0, 0, 0}, {0, 0, 0}, {77, 77, 77}};
            ASSERT_TRUE(ReadInsertParts(m_graphic, found));
            ::InsertGetParts(m_graphic, &untouched);
            ASSERT_EQ(missing != 0, untouched.rotation[0] == 77);
            for (int k = 0; k < 3; ++k)
                ASSERT_NEAR(parts.scale[k], found.scale[k], 1e-12);
            ::InsertSetParts(m_graphic, &found);
            ExpectCorners(corners, 1e-12);
        }
}

TEST_F(InsertPartsTest, ShearIsKeptByMovingAndLostByRotating) {
    SetAxes({2, 0, 0}, {1, 1, 0}, {0, 0, 1});
    InsertParts from;
    ASSERT_TRUE(ReadInsertParts(m_graphic, from));
    EXPECT_NEAR(std::sqrt(2.0), from.scale[1], 1e-12);
    InsertParts to = from;
    to.position[0] = 110;
    ChangeInsertParts(m_graphic, from, to);
    ExpectCorners({{{110, 20, 30}, {112, 20, 30}, {111, 21, 30}, {110, 20, 31}}}, 1e-12);
    to.rotation[2] = kPi / 2;
    ChangeInsertParts(m_graphic, from, to);
    ExpectCorners({{{110, 20, 30}, {110, 22, 30}, {110 - std::sqrt(2.0), 20, 30}, {110, 20, 31}}}, 1e-12);
}

TEST_F(InsertPartsTest, NumbersThatAreNotFiniteAreNeverWritten) {
    SetAxes({1, 0, 0}, {0, 1, 0}, {0, 0, 1});
    const Corners corners = Get();
    InsertParts parts;
    ASSERT_TRUE(ReadInsertParts(m_graphic, parts));
    for (const double bad : {static_cast<double>(NAN), HUGE_VAL, -HUGE_VAL})
        for (double(InsertParts::*group)[3] : {&InsertParts::position, &InsertParts::scale, &InsertParts::rotation})
            for (int k = 0; k < 3; ++k) {
                InsertParts to = parts;
                (to.*group)[k] = bad;
                ChangeInsertParts(m_graphic, parts, to);
            }
    ExpectCorners(corners, 0);
    GraphicStruct* line = ::GraphicNewEx(kGraphicVertices, 0, 1);
    EXPECT_FALSE(ReadInsertParts(line, parts)) << "fewer than four vertices";
    ::InsertSetParts(line, &parts);
    ::GraphicDispose(&line);
    Corners undefined = corners;
    undefined[2][1] = NAN;
    Set(undefined);
    EXPECT_FALSE(ReadInsertParts(m_graphic, parts));
}

} // namespace
