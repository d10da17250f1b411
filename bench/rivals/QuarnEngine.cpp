// SPDX-License-Identifier: Apache-2.0
#include "frame/QnGeObjList.h"
#include "polylines/QnGeMLine2d.h"
#include "regions/QnGePolygon2d.h"
#include "rivals/Engine.h"

namespace {

class QuarnBoolean : public BooleanEngine {
public:
    std::string GetName() const override { return "QuarnGeo"; }

    void Load(const OutlinePair& pair) override {
        m_first = QnGePolygon2d(MakeClosedLine(pair.first), false);
        m_second = QnGePolygon2d(MakeClosedLine(pair.second), false);
    }

    void Run(Operation operation) override {
        switch (operation) {
            case Operation::UNION:
                m_union.reset(m_first.Union(m_second));
                break;
            case Operation::INTERSECTION:
                m_first.Inter(m_second, m_pieces);
                break;
            case Operation::DIFFERENCE:
                m_first.SubtractBy(m_second, m_pieces);
                break;
        }
    }

    double GetArea() const override {
        double area = m_union == nullptr ? 0.0 : m_union->Area();
        for (auto entry = m_pieces.GetFirst(); entry != nullptr; entry = m_pieces.GetNext(entry)) {
            area += static_cast<const QnGeRegion2d*>(*entry)->Area();
        }
        return area;
    }

    void Clear() override {
        m_union.reset();
        m_pieces.Reset();
    }

private:
    QnGePolygon2d m_first;
    QnGePolygon2d m_second;
    std::unique_ptr<QnGeRegion2d> m_union;
    QnGeObjList m_pieces;
};

class QuarnHits : public HitEngine {
public:
    std::string GetName() const override { return "QuarnGeo"; }

    void Load(const std::vector<QnGePoint>& outline, const std::vector<QnGePoint>& points) override {
        m_line = MakeClosedLine(outline);
        m_points = points;
    }

    long CountInside(long count) override {
        long inside = 0;
        for (long i = 0; i < count; i++) {
            inside += m_line.HitTest(m_points[static_cast<std::size_t>(i)]).HasBit(HIT_IN) ? 1 : 0;
        }
        return inside;
    }

private:
    QnGeMLine2d m_line;
    std::vector<QnGePoint> m_points;
};

}  // namespace

void AddQuarn(Engines& engines) {
    engines.booleans.push_back(std::make_unique<QuarnBoolean>());
    engines.hits.push_back(std::make_unique<QuarnHits>());
}
