// SPDX-License-Identifier: Apache-2.0

// The matrices of moves, scales, turns, projections and mirrors.
//
// Invariant  Each operation writes only the entries that its matrix has beside those of the identity. What does not fit
//            into that (turns about a line, mirrors) is built at the origin first and then taken to its place: moved
//            there last, moved back to the origin first.

#include <cmath>

#include "values/QnGeBaseLine2d.h"
#include "values/QnGeBaseLine3d.h"
#include "values/QnGeBasePlane.h"
#include "values/QnGeMatrix.h"

namespace {

/// Makes a transform that was built at the origin act at `p`.
void MoveTo(QnGeMatrix& matrix, const QnGePoint& p) {
    QnGeMatrix there;
    QnGeMatrix back;
    there.CreateMoveMatrix(p.x, p.y, p.z);
    back.CreateMoveMatrix(-p.x, -p.y, -p.z);
    matrix.PostMultiBy(back);
    matrix.PreMultiBy(there);
}

/// Rows and columns 0 to size - 1 become I - 2 v vT, for the unit vector v.
void WriteReflection(QnGeMatrix& matrix, const QnGePoint& v, int size) {
    for (int i = 0; i < size; ++i) {
        for (int j = 0; j < size; ++j) {
            matrix.m[i][j] = (i == j ? 1.0 : 0.0) - 2.0 * v[i] * v[j];
        }
    }
}

/// The turn about x that takes a unit vector with the given y and z into the zx plane; s is their length.
QnGeMatrix TurnIntoZX(double y, double z, double s) {
    QnGeMatrix turn;
    turn.m[1][1] = turn.m[2][2] = z / s;
    turn.m[2][1] = y / s;
    turn.m[1][2] = -(y / s);
    return turn;
}

/// The turn about y that takes the unit vector (x, 0, s) onto the z axis.
QnGeMatrix TurnOntoZ(double x, double s) {
    QnGeMatrix turn;
    turn.m[0][0] = turn.m[2][2] = s;
    turn.m[0][2] = -x;
    turn.m[2][0] = x;
    return turn;
}

/// A turn's inverse is its transpose.
QnGeMatrix Back(const QnGeMatrix& turn) {
    QnGeMatrix back(turn);
    back.Swap();
    return back;
}

}  // namespace

// ---- moves and scales ----------------------------------------------------------------------------

void QnGeMatrix::CreateMoveMatrix(double moveX, double moveY) {
    m[0][3] = moveX;
    m[1][3] = moveY;
}

void QnGeMatrix::CreateMoveMatrix(double moveX, double moveY, double moveZ) {
    CreateMoveMatrix(moveX, moveY);
    m[2][3] = moveZ;
}

void QnGeMatrix::CreateMoveMatrix(const QnGeVector2d& move) {
    CreateMoveMatrix(move.x, move.y);
}

void QnGeMatrix::CreateMoveMatrix(const QnGeVector3d& move) {
    CreateMoveMatrix(move.x, move.y, move.z);
}

void QnGeMatrix::CreateScaleMatrix(double sx, double sy) {
    m[0][0] = sx;
    m[1][1] = sy;
}

void QnGeMatrix::CreateScaleMatrix(double sx, double sy, double sz) {
    CreateScaleMatrix(sx, sy);
    m[2][2] = sz;
}

void QnGeMatrix::CreateScaleMatrix(double sx, double sy, const QnGePoint& base) {
    CreateScaleMatrix(sx, sy);
    m[0][3] = (1.0 - sx) * base.x;
    m[1][3] = (1.0 - sy) * base.y;
}

void QnGeMatrix::CreateScaleMatrix(double sx, double sy, double sz, const QnGePoint& base) {
    CreateScaleMatrix(sx, sy, base);
    m[2][2] = sz;
    m[2][3] = (1.0 - sz) * base.z;
}

// ---- turns ---------------------------------------------------------------------------------------

void QnGeMatrix::CreateXRotateMatrix(double angle) {
    m[1][1] = m[2][2] = std::cos(angle);
    m[2][1] = std::sin(angle);
    m[1][2] = -m[2][1];
}

void QnGeMatrix::CreateYRotateMatrix(double angle) {
    m[0][0] = m[2][2] = std::cos(angle);
    m[0][2] = std::sin(angle);
    m[2][0] = -m[0][2];
}

void QnGeMatrix::CreateZRotateMatrix(double angle) {
    m[0][0] = m[1][1] = std::cos(angle);
    m[1][0] = std::sin(angle);
    m[0][1] = -m[1][0];
}

void QnGeMatrix::CreateRotateMatrix(double angle, const QnGePoint& base) {
    CreateZRotateMatrix(angle);
    const double cosA = m[0][0];
    const double sinA = m[1][0];
    m[0][3] = base.y * sinA + (1.0 - cosA) * base.x;
    m[1][3] = (1.0 - cosA) * base.y - base.x * sinA;
}

void QnGeMatrix::CreateRotateMatrix(double angle, const QnGeBaseLine3d& axis) {
    QnGeVector3d d(axis.GetVector());
    if (!d.Normalize()) {
        return;
    }
    const double s = std::sqrt(d.y * d.y + d.z * d.z);
    const QnGeMatrix intoZX = TurnIntoZX(d.y, d.z, s);
    const QnGeMatrix ontoZ = TurnOntoZ(d.x, s);
    CreateZRotateMatrix(angle);
    PostMultiBy(ontoZ);
    PostMultiBy(intoZX);
    PreMultiBy(Back(ontoZ));
    PreMultiBy(Back(intoZX));
    MoveTo(*this, axis.basePoint);
}

// ---- projections ---------------------------------------------------------------------------------

void QnGeMatrix::CreateXYProjectMatrix() {
    m[0][2] = m[1][2] = m[2][2] = m[3][2] = 0.0;
}

bool QnGeMatrix::CreateXYProjectMatrix(const QnGePoint& dir, bool parallel) {
    if (IsZero(dir.z, g_distZero)) {
        return false;
    }
    CreateXYProjectMatrix();
    m[0][2] = -dir.x / dir.z;
    m[1][2] = -dir.y / dir.z;
    if (!parallel) {
        m[3][2] = -1.0 / dir.z;
    }
    return true;
}

bool QnGeMatrix::CreateProjectMatrix(const QnGeBasePlane& plane, const QnGePoint& dir, bool parallel) {
    if (!parallel) {
        if (plane.HitTest(dir, false).HasBit(HIT_ON)) {
            return false;
        }
        QnGeMatrix fromPlane;
        fromPlane.SetCoordSys(plane, true);
        QnGeMatrix toPlane(fromPlane);
        if (!toPlane.Reverse()) {
            return false;
        }
        QnGePoint eye(dir);
        toPlane.Transform(eye);
        QnGeMatrix project;
        if (!project.CreateXYProjectMatrix(eye, false)) {
            return false;
        }
        PreMultiBy(toPlane);
        PreMultiBy(project);
        PreMultiBy(fromPlane);
        return true;
    }

    QnGeVector3d u(dir);
    u.Normalize();
    const QnGeVector3d& n = plane.GetNormal();
    const double den = n & u;
    if (IsZero(den, g_fZero)) {
        return false;
    }
    for (int i = 0; i < 3; ++i) {
        for (int j = 0; j < 3; ++j) {
            m[i][j] = (i == j ? 1.0 : 0.0) - u[i] * n[j] / den;
        }
        m[i][3] = -u[i] * plane.d / den;
    }
    return true;
}

// ---- mirrors -------------------------------------------------------------------------------------

void QnGeMatrix::CreateMirrorMatrix(const QnGePoint& center) {
    m[3][3] = -1.0;
    MoveTo(*this, center);
}

void QnGeMatrix::CreateMirrorMatrix(const QnGeBasePlane& plane) {
    QnGeVector3d n(plane.GetNormal());
    n.Normalize();
    WriteReflection(*this, n, 3);
    m[3][3] = 1.0;
    MoveTo(*this, plane.GetSamplePoint());
}

void QnGeMatrix::CreateMirrorMatrix(const QnGeBaseLine3d& axis) {
    QnGeVector3d d(axis.GetVector());
    d.Normalize();
    WriteReflection(*this, d, 3);
    m[3][3] = -1.0;
    MoveTo(*this, axis.basePoint);
}

void QnGeMatrix::CreateMirrorMatrix(const QnGeBaseLine2d& axis) {
    QnGeVector2d d(axis.GetVector());
    d.Normalize();
    WriteReflection(*this, d, 2);
    m[2][2] = 1.0;
    m[3][3] = -1.0;
    MoveTo(*this, axis.basePoint);
}
