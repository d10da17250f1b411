// SPDX-License-Identifier: Apache-2.0
#include "values/QnGeMatrix.h"

#include "values/QnGeCoordSys.h"

namespace {

constexpr int SIZE = 4;

/// A turned-over plan shows as an upright coordinate of its cross product below this.
constexpr double MIRROR_LIMIT = -1e-06;

int Inversions(int a, int b, int c, int d) {
    return (a > b) + (a > c) + (a > d) + (b > c) + (b > d) + (c > d);
}

}  // namespace

QnGeMatrix::QnGeMatrix() {
    InitIdentity();
}

void QnGeMatrix::InitIdentity() {
    for (int i = 0; i < SIZE; ++i) {
        for (int j = 0; j < SIZE; ++j) {
            m[i][j] = i == j ? 1.0 : 0.0;
        }
    }
}

void QnGeMatrix::Export(float* out) const {
    for (int i = 0; i < SIZE; ++i) {
        for (int j = 0; j < SIZE; ++j) {
            out[i * SIZE + j] = static_cast<float>(m[i][j]);
        }
    }
}

QnGeMatrix& QnGeMatrix::operator=(const float* in) {
    for (int i = 0; i < SIZE; ++i) {
        for (int j = 0; j < SIZE; ++j) {
            m[i][j] = static_cast<double>(in[i * SIZE + j]);
        }
    }
    return *this;
}

// ---- transforming --------------------------------------------------------------------------------

void QnGeMatrix::Transform(QnGePoint& p) const {
    const double w = m[3][0] * p.x + m[3][1] * p.y + m[3][2] * p.z + m[3][3];
    const double x = (m[0][0] * p.x + m[0][1] * p.y + m[0][2] * p.z + m[0][3]) / w;
    const double y = (m[1][0] * p.x + m[1][1] * p.y + m[1][2] * p.z + m[1][3]) / w;
    const double z = (m[2][0] * p.x + m[2][1] * p.y + m[2][2] * p.z + m[2][3]) / w;
    p.SetPoint(x, y, z);
}

void QnGeMatrix::Transform(QnGeVector3d& v) const {
    const double w = m[3][0] * v.x + m[3][1] * v.y + m[3][2] * v.z + m[3][3];
    const double x = (m[0][0] * v.x + m[0][1] * v.y + m[0][2] * v.z) / w;
    const double y = (m[1][0] * v.x + m[1][1] * v.y + m[1][2] * v.z) / w;
    const double z = (m[2][0] * v.x + m[2][1] * v.y + m[2][2] * v.z) / w;
    v.SetPoint(x, y, z);
}

void QnGeMatrix::Transform(QnGeVector2d& v) const {
    const double w = m[3][0] * v.x + m[3][1] * v.y + m[3][3];
    const double x = (m[0][0] * v.x + m[0][1] * v.y) / w;
    const double y = (m[1][0] * v.x + m[1][1] * v.y) / w;
    v.SetPoint(x, y);
}

void QnGeMatrix::Transform2D(QnGePoint& p) const {
    const double w = m[3][0] * p.x + m[3][1] * p.y + m[3][3];
    const double x = (m[0][0] * p.x + m[0][1] * p.y + m[0][3]) / w;
    const double y = (m[1][0] * p.x + m[1][1] * p.y + m[1][3]) / w;
    p.SetPoint(x, y);
}

// ---- composing -----------------------------------------------------------------------------------

QnGeMatrix QnGeMatrix::operator*(const QnGeMatrix& a) const {
    QnGeMatrix product;
    for (int i = 0; i < SIZE; ++i) {
        for (int j = 0; j < SIZE; ++j) {
            product.m[i][j] = m[i][0] * a.m[0][j] + m[i][1] * a.m[1][j] + m[i][2] * a.m[2][j] + m[i][3] * a.m[3][j];
        }
    }
    return product;
}

void QnGeMatrix::PostMultiBy(const QnGeMatrix& a) {
    *this = *this * a;
}

void QnGeMatrix::PreMultiBy(const QnGeMatrix& a) {
    *this = a * *this;
}

QnGeMatrix& QnGeMatrix::operator*=(const QnGeMatrix& a) {
    PostMultiBy(a);
    return *this;
}

double QnGeMatrix::Rank() const {
    double sum = 0.0;
    for (int a = 0; a < SIZE; ++a) {
        for (int b = 0; b < SIZE; ++b) {
            for (int c = 0; c < SIZE; ++c) {
                if (a == b || a == c || b == c) {
                    continue;
                }
                const int d = 0 + 1 + 2 + 3 - a - b - c;
                const double term = m[0][a] * m[1][b] * m[2][c] * m[3][d];
                sum += Inversions(a, b, c, d) % 2 == 0 ? term : -term;
            }
        }
    }
    return sum;
}

bool QnGeMatrix::CanReverse() const {
    return !IsZero(Rank(), g_fZero);
}

bool QnGeMatrix::Reverse() {
    const double det = Rank();
    if (IsZero(det, g_fZero)) {
        return false;
    }
    QnGeMatrix inverse;
    for (int i = 0; i < SIZE; ++i) {
        for (int j = 0; j < SIZE; ++j) {
            QnGeMatrix replaced(*this);
            for (int k = 0; k < SIZE; ++k) {
                replaced.m[i][k] = k == j ? 1.0 : 0.0;
            }
            inverse.m[j][i] = replaced.Rank() / det;
        }
    }
    *this = inverse;
    return true;
}

void QnGeMatrix::Swap() {
    const QnGeMatrix old(*this);
    for (int i = 0; i < SIZE; ++i) {
        for (int j = 0; j < SIZE; ++j) {
            m[i][j] = old.m[j][i];
        }
    }
}

bool QnGeMatrix::IsMirrorMat() const {
    QnGeVector3d x(1.0, 0.0, 0.0);
    QnGeVector3d y(0.0, 1.0, 0.0);
    Transform(x);
    Transform(y);
    return (x * y).z < MIRROR_LIMIT;
}

// ---- coordinate systems --------------------------------------------------------------------------

void QnGeMatrix::GetCoordSys(QnGeCoordSys& cs) const {
    cs.Reset();
    cs.TransformBy(*this);
}

void QnGeMatrix::SetCoordSys(const QnGePoint& origin, const QnGeVector3d& x, const QnGeVector3d& y,
                             const QnGeVector3d& z) {
    QnGeCoordSys(origin, x, y, z).GetMatrixTo(*this);
}

void QnGeMatrix::SetCoordSys(const QnGePoint& origin, const QnGeVector3d& v1, const QnGeVector3d& v2, bool rightHand) {
    QnGeCoordSys(origin, v1, v2, rightHand).GetMatrixTo(*this);
}

void QnGeMatrix::SetCoordSys(const QnGePoint& origin, const QnGePoint& p1, const QnGePoint& p2, bool rightHand) {
    QnGeCoordSys(origin, p1, p2, rightHand).GetMatrixTo(*this);
}

void QnGeMatrix::SetCoordSys(const QnGePoint& origin, const QnGeVector3d& z, bool rightHand) {
    QnGeCoordSys(origin, z, rightHand).GetMatrixTo(*this);
}

void QnGeMatrix::SetCoordSys(const QnGeBasePlane& plane, bool rightHand) {
    QnGeCoordSys(plane, rightHand).GetMatrixTo(*this);
}

void QnGeMatrix::SetToWorldToPlane(const QnGeVector3d& z) {
    QnGeCoordSys(QnGePoint(), z, true).GetMatrixTo(*this);
}

void QnGeMatrix::SetToPlaneToWorld(const QnGeVector3d& z) {
    QnGeCoordSys(QnGePoint(), z, true).GetMatrixFrom(*this);
}

void QnGeMatrix::ConvertToPlane(const QnGeVector3d& z) {
    QnGeMatrix worldToPlane;
    QnGeMatrix planeToWorld;
    worldToPlane.SetToWorldToPlane(z);
    planeToWorld.SetToPlaneToWorld(z);
    PreMultiBy(worldToPlane);
    PostMultiBy(planeToWorld);
}
