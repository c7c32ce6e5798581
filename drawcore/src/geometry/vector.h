// Points in the plane, and points and vectors in space.
#pragma once

namespace drawcore {

constexpr double kPi = 3.14159265358979323846;
constexpr double Radians(double degrees) {
    return degrees * (kPi / 180);
}

constexpr double Degrees(double radians) {
    return radians * (180 / kPi);
}

struct Point {
    double x = 0, y = 0;
};

struct Vec3 {
    double x = 0, y = 0, z = 0;
};

inline Vec3 operator+(const Vec3& a, const Vec3& b) {
    return {a.x + b.x, a.y + b.y, a.z + b.z};
}
inline Vec3 operator-(const Vec3& a, const Vec3& b) {
    return {a.x - b.x, a.y - b.y, a.z - b.z};
}
inline Vec3 operator*(const Vec3& a, double f) {
    return {a.x * f, a.y * f, a.z * f};
}
inline bool operator==(const Vec3& a, const Vec3& b) {
    return a.x == b.x && a.y == b.y && a.z == b.z;
}
double Length(const Vec3& v);
constexpr double Dot(const Vec3& a, const Vec3& b) {
    return a.x * b.x + a.y * b.y + a.z * b.z;
}
Vec3 Cross(const Vec3& a, const Vec3& b);
Vec3 Normalized(const Vec3& v); // Returns a vector of length 0 unchanged.
bool IsFinite(const Vec3& p);

} // namespace drawcore
