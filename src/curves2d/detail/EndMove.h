// SPDX-License-Identifier: Apache-2.0
#pragma once

#include <memory>

#include "containers/QnDynArray.h"
#include "curves2d/QnGeCurve2d.h"
#include "frame/QnGeObjList.h"
#include "values/QnGePoint2d.h"

namespace qn_detail {

/// Parameters in ascending order, each exact value once. Values that differ by little all stay.
using SortedPas = QnDynArray<double>;

/// A curve on its extension curve, while one of its ends moves along that.
///
///      - - - -|=============|- - - - - ->   the extension curve, endless or closed
///            start         end              beyond the curve its parameters go on
///
/// Parameter  All parameters are those of the extension curve. An end that does not exist counts as 0 at the start and
///            as 1 at the end.
/// Direction  `Near` and `far` count from the end that stays, in the direction in which the other one leaves it.
class EndMove {
public:
    EndMove(const QnGeCurve2d& curve, bool atStart);

    bool HasExtension() const { return m_extension != nullptr; }
    const QnGeCurve2d& Extension() const { return *m_extension; }
    bool HasMovingEnd() const { return m_atStart ? m_hasStart : m_hasEnd; }
    bool HasStayingEnd() const { return m_atStart ? m_hasEnd : m_hasStart; }

    // ---- which places are allowed ------------------------------------------------------------------

    /// Whether a place lengthens the curve; on a closed extension every place does.
    ///
    /// Tolerance  g_fZero: the present end itself does not.
    bool IsBeyondMovingEnd(double pa) const;

    /// Whether a place leaves the staying end where it is; so does every place if that end does not exist, and on a
    /// closed extension.
    ///
    /// Tolerance  g_fZero.
    bool IsClearOfStayingEnd(double pa) const;

    // ---- picking, of at least one candidate --------------------------------------------------------
    // Of equally good candidates it is the one with the lowest parameter.

    double Nearest(const SortedPas& candidates) const;
    double Farthest(const SortedPas& candidates) const;

    /// The candidate closest to where the moving end is now; on a closed extension either way round.
    double ClosestToMovingEnd(const SortedPas& candidates) const;

    // ---- doing -------------------------------------------------------------------------------------

    void MoveTo(double pa) { (m_atStart ? m_startPa : m_endPa) = pa; }

    /// Whether start and end have the same parameter.
    ///
    /// Tolerance  g_fZero; a whole turn apart is not the same.
    bool IsEmpty() const;

    /// The stretch between the ends, or up to the moved end if the other one does not exist.
    ///
    /// Fails  Null.
    std::unique_ptr<QnGeCurve2d> MakeCurve() const;

private:
    double StayingPa() const { return m_atStart ? m_endPa : m_startPa; }
    double MovingPa() const { return m_atStart ? m_startPa : m_endPa; }
    double TravelTo(double pa) const;
    double GapTo(double pa) const;

    std::unique_ptr<QnGeCurve2d> m_extension;
    bool m_atStart;
    bool m_hasStart = false;
    bool m_hasEnd = false;
    double m_startPa = 0.0;
    double m_endPa = 1.0;
    bool m_isClosed = false;
    double m_period = 0.0;
};

/// The piece before (`isFirst`) or behind the one cut at `pa`.
///
/// Fails  Null unless the curve's Split gives two pieces.
std::unique_ptr<QnGeCurve2d> MakePiece(const QnGeCurve2d& curve, double pa, bool isFirst);

/// Makes `curve` the shape of `shape`: ETR_DONE, or ETR_FAILED if that is null or of a class that it refuses.
QnGeCurve2d::ExtendTrimResult TakeShape(QnGeCurve2d& curve, std::unique_ptr<QnGeCurve2d> shape);

/// Sorts the parameters on `carrier` of the points among `hits` into `pas`, of those that `keep` allows.
///
/// Why so  Overlaps are no places to move an end to, and neither is a point that the carrier has no parameter for.
template <class Keep>
void CollectPas(const QnGeCurve2d& carrier, const QnGeObjList& hits, Keep keep, SortedPas& pas) {
    for (auto entry = hits.GetFirst(); entry != nullptr; entry = hits.GetNext(entry)) {
        if (*entry == nullptr || (*entry)->GetCI() != &QnGePoint2d::s_classInfo) {
            continue;
        }
        double pa = 0.0;
        if (carrier.GetPaFromPt(static_cast<const QnGePoint2d&>(**entry), pa) && keep(pa)) {
            pas.SortInto(pa, false);
        }
    }
}

}  // namespace qn_detail
