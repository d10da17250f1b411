// SPDX-License-Identifier: Apache-2.0
// The named cases of tests/corpus/polygon_booleans.txt, each in all variants in which the answer must survive. A case
// that fails leaves a picture of its name in the folder for test output.

#include <gtest/gtest.h>

#include <fstream>
#include <functional>
#include <sstream>

#include "RegionTesting.h"
#include "support/SvgPicture.h"

using namespace region_testing;

namespace {

/// What one operation must answer. A count of -1 stands for the answer "none".
struct Expected {
    double area = 0.0;
    int count = -1;
};

struct BooleanCase {
    std::string name;
    Ring a;
    Ring b;
    Expected unite;
    Expected inter;
    Expected aLessB;
    Expected bLessA;
    double tolerance = 0.0;
    std::string odd;
};

std::ostream& operator<<(std::ostream& out, const BooleanCase& booleanCase) {
    return out << booleanCase.name;
}

Ring ReadRing(std::istream& words) {
    Ring ring;
    for (std::string word; words >> word;) {
        ring.push_back(ParsePoint(word));
    }
    return ring;
}

Expected ReadExpected(std::istream& words) {
    Expected expected;
    std::string word;
    words >> word;
    if (word != "none") {
        expected.area = std::stod(word);
        words >> word >> expected.count;
    }
    return expected;
}

std::vector<BooleanCase> ReadCases() {
    std::ifstream file(QUARN_SOURCE_DIR "/tests/corpus/polygon_booleans.txt");
    std::vector<BooleanCase> cases;
    for (std::string line; std::getline(file, line);) {
        std::istringstream words(line);
        std::string key;
        words >> key;
        if (key == "case") {
            cases.emplace_back();
            words >> cases.back().name;
        } else if (cases.empty()) {
            continue;
        } else if (key == "a") {
            cases.back().a = ReadRing(words);
        } else if (key == "b") {
            cases.back().b = ReadRing(words);
        } else if (key == "union") {
            cases.back().unite = ReadExpected(words);
        } else if (key == "inter") {
            cases.back().inter = ReadExpected(words);
        } else if (key == "a-b") {
            cases.back().aLessB = ReadExpected(words);
        } else if (key == "b-a") {
            cases.back().bLessA = ReadExpected(words);
        } else if (key == "tolerance") {
            words >> cases.back().tolerance;
        } else if (key == "odd") {
            words >> cases.back().odd;
        }
    }
    return cases;
}

// ---- variants --------------------------------------------------------------------------------------

BooleanCase Changed(BooleanCase booleanCase, const std::string& variant,
                    const std::function<QnGePoint(QnGePoint)>& move) {
    booleanCase.name += ' ' + variant;
    for (Ring* const ring : {&booleanCase.a, &booleanCase.b}) {
        for (QnGePoint& p : *ring) {
            p = move(p);
        }
        polygon_pairs::MakeCounterClockwise(*ring);
    }
    return booleanCase;
}

std::vector<BooleanCase> VariantsOf(const BooleanCase& original) {
    using P = QnGePoint;
    std::vector<BooleanCase> variants = {
        original,
        Changed(original, "turned by a quarter", [](P p) { return P(-p.y, p.x); }),
        Changed(original, "turned by a half", [](P p) { return P(-p.x, -p.y); }),
        Changed(original, "turned by three quarters", [](P p) { return P(p.y, -p.x); }),
        Changed(original, "mirrored", [](P p) { return P(-p.x, p.y); }),
        Changed(original, "mirrored at the diagonal", [](P p) { return P(p.y, p.x); }),
        Changed(original, "moved", [](P p) { return P(p.x + 1024.0, p.y - 4096.0); }),
        Changed(original, "moved far away", [](P p) { return P(p.x - 262144.0, p.y + 524288.0); }),
        Changed(original, "enlarged", [](P p) { return P(2.0 * p.x, 2.0 * p.y); }),
    };
    for (BooleanCase& variant : variants) {
        const double scale = std::fabs(polygon_pairs::SignedArea(variant.a) / polygon_pairs::SignedArea(original.a));
        for (Expected* const e : {&variant.unite, &variant.inter, &variant.aLessB, &variant.bLessA}) {
            e->area *= scale;
        }
    }
    for (std::size_t shift = 1; shift < original.a.size(); ++shift) {
        BooleanCase rotated = original;
        rotated.name += " started at " + std::to_string(shift);
        rotated.a = polygon_pairs::StartedAt(original.a, static_cast<long>(shift));
        rotated.b = polygon_pairs::StartedAt(original.b, static_cast<long>(2 * shift + 1));
        variants.push_back(rotated);
    }
    const std::size_t count = variants.size();
    for (std::size_t i = 0; i < count; ++i) {
        BooleanCase swapped = variants[i];
        swapped.name += " swapped";
        std::swap(swapped.a, swapped.b);
        std::swap(swapped.aLessB, swapped.bLessA);
        variants.push_back(swapped);
    }
    return variants;
}

// ---- checks ----------------------------------------------------------------------------------------

void ExpectAnswer(const char* operation, const Expected& expected, double area, int count, double slack) {
    EXPECT_EQ(count, expected.count) << operation;
    EXPECT_NEAR(area, expected.area, slack) << operation;
}

/// What rounding of the coordinates may change in an area.
double RoundingOf(const Ring& ring) {
    constexpr double ROUNDING = 1e-15;
    double perimeter = 0.0;
    double farthest = 0.0;
    for (std::size_t i = 0; i < ring.size(); ++i) {
        perimeter += ring[i].Distance2d(ring[(i + 1) % ring.size()]);
        farthest = std::max({farthest, std::fabs(ring[i].x), std::fabs(ring[i].y)});
    }
    return ROUNDING * farthest * perimeter;
}

int CountOf(const QnGeObjList& list) {
    return list.GetLength() == 0 ? -1 : static_cast<int>(list.GetLength());
}

void SavePicture(const BooleanCase& booleanCase, const Booleans& result) {
    SvgPicture picture(booleanCase.name);
    picture.Columns(2).Panel("operands");
    picture.Draw(PolygonOf(booleanCase.a), SvgRole::A).Draw(PolygonOf(booleanCase.b), SvgRole::B);
    picture.Panel("union");
    if (result.unite != nullptr) {
        picture.Draw(*result.unite, SvgRole::Result);
    }
    picture.Panel("intersection").Draw(result.inter, SvgRole::Result);
    picture.Panel("a less b").Draw(result.aLessB, SvgRole::Result);
    picture.Save(QUARN_TEST_OUTPUT_DIR "/" + booleanCase.name + ".svg");
}

void RunCase(const BooleanCase& c) {
    const Booleans result(c.a, c.b);
    const Areas areas = Measure(c.a, c.b);
    const double slack = c.tolerance * static_cast<double>(areas.a + areas.b) + RoundingOf(c.a) + RoundingOf(c.b);
    SCOPED_TRACE(c.name + '\n' + PairText(c.a, c.b));
    ExpectAnswer("union", c.unite, result.unite == nullptr ? 0.0 : result.unite->Area(),
                 result.unite == nullptr ? -1 : static_cast<int>(result.unite->GetHoleNum()), slack);
    ExpectAnswer("inter", c.inter, TotalArea(result.inter), CountOf(result.inter), slack);
    ExpectAnswer("a-b", c.aLessB, TotalArea(result.aLessB), CountOf(result.aLessB), slack);
    ExpectAnswer("b-a", c.bLessA, TotalArea(result.bLessA), CountOf(result.bLessA), slack);
    EXPECT_EQ(result.Check(false), "");
    // The case itself is right where it is not marked as odd.
    EXPECT_TRUE(c.unite.count < 0 || std::fabs(c.unite.area - static_cast<double>(areas.Union())) <= slack);
    EXPECT_TRUE(c.odd == "inter" || std::fabs(c.inter.area - static_cast<double>(areas.inter)) <= slack);
    EXPECT_NEAR(c.aLessB.area, static_cast<double>(areas.ALessB()), slack);
    if (::testing::Test::HasFailure()) {
        SavePicture(c, result);
    }
}

std::string CaseName(const ::testing::TestParamInfo<BooleanCase>& given) {
    return given.param.name;
}

class PolygonBooleanCorpus : public ::testing::TestWithParam<BooleanCase> {};

}  // namespace

TEST(PolygonBooleanCorpusFile, IsReadWhole) {
    const std::vector<BooleanCase> cases = ReadCases();
    EXPECT_GE(cases.size(), 40U);
    for (const BooleanCase& c : cases) {
        EXPECT_GE(c.a.size(), 3U) << c.name;
        EXPECT_GE(c.b.size(), 3U) << c.name;
        EXPECT_GT(polygon_pairs::SignedArea(c.a), 0.0) << c.name;
        EXPECT_GT(polygon_pairs::SignedArea(c.b), 0.0) << c.name;
        EXPECT_GT(c.tolerance, 0.0) << c.name;
    }
}

TEST_P(PolygonBooleanCorpus, HoldsInAllVariants) {
    for (const BooleanCase& variant : VariantsOf(GetParam())) {
        RunCase(variant);
        if (HasFailure()) {
            return;
        }
    }
}

INSTANTIATE_TEST_SUITE_P(Case, PolygonBooleanCorpus, ::testing::ValuesIn(ReadCases()), CaseName);
