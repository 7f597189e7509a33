#include "Filters.h"

#include <algorithm>
#include <cmath>
#include <vector>

namespace art {

namespace {

// One box pass along a line of n values with stride, half-width k, zero outside.
void boxLine(float *data, int n, int stride, int k, std::vector<float> &scratch)
{
    scratch.assign(static_cast<std::size_t>(n), 0.0f);
    float sum = 0.0f, norm = 1.0f / (2 * k + 1);
    for (int i = -k; i <= k; ++i)
        if (i >= 0 && i < n)
            sum += data[i * stride];
    for (int i = 0; i < n; ++i) {
        scratch[static_cast<std::size_t>(i)] = sum * norm;
        int out = i - k, in = i + k + 1;
        if (out >= 0)
            sum -= data[out * stride];
        if (in < n)
            sum += data[in * stride];
    }
    for (int i = 0; i < n; ++i)
        data[i * stride] = scratch[static_cast<std::size_t>(i)];
}

Mask padded(const Mask &m, int pad)
{
    Mask out(m.left - pad, m.top - pad, m.width + 2 * pad, m.height + 2 * pad);
    for (int y = 0; y < m.height; ++y)
        for (int x = 0; x < m.width; ++x)
            out.cell(m.left + x, m.top + y) = m.cover[static_cast<std::size_t>(y) * m.width + x];
    return out;
}

float fade(float t) { return t * t * (3.0f - 2.0f * t); }

} // namespace

Mask blurred(const Mask &mask, float radius)
{
    int k = std::max(1, static_cast<int>(std::lround(radius / 2.0f)));
    Mask out = padded(mask, 3 * k + 1);
    std::vector<float> scratch;
    for (int pass = 0; pass < 3; ++pass) {
        for (int y = 0; y < out.height; ++y)
            boxLine(&out.cover[static_cast<std::size_t>(y) * out.width], out.width, 1, k, scratch);
        for (int x = 0; x < out.width; ++x)
            boxLine(&out.cover[static_cast<std::size_t>(x)], out.height, out.width, k, scratch);
    }
    return out;
}

Mask dilated(const Mask &mask, float radius)
{
    int r = static_cast<int>(std::ceil(radius));
    Mask src = padded(mask, r + 1), out = src;
    for (int y = src.top; y < src.top + src.height; ++y)
        for (int x = src.left; x < src.left + src.width; ++x) {
            float best = 0.0f;
            for (int dy = -r; dy <= r; ++dy)
                for (int dx = -r; dx <= r; ++dx) {
                    float reach = std::min(1.0f, std::max(0.0f, radius + 0.5f - std::sqrt(float(dx * dx + dy * dy))));
                    best = std::max(best, src.at(x + dx, y + dy) * reach);
                }
            out.cell(x, y) = best;
        }
    return out;
}

Mask shifted(const Mask &mask, int dx, int dy)
{
    Mask out = mask;
    out.left += dx;
    out.top += dy;
    return out;
}

Mask scaledCover(const Mask &mask, float factor)
{
    Mask out = mask;
    for (float &c : out.cover)
        c = std::min(1.0f, c * factor);
    return out;
}

Mask multiplied(const Mask &a, const Mask &b)
{
    Mask out = a;
    for (int y = a.top; y < a.top + a.height; ++y)
        for (int x = a.left; x < a.left + a.width; ++x)
            out.cell(x, y) *= b.at(x, y);
    return out;
}

Mask united(const Mask &a, const Mask &b)
{
    int l = std::min(a.left, b.left), t = std::min(a.top, b.top);
    int r = std::max(a.left + a.width, b.left + b.width), bt = std::max(a.top + a.height, b.top + b.height);
    Mask out(l, t, r - l, bt - t);
    for (int y = t; y < bt; ++y)
        for (int x = l; x < r; ++x)
            out.cell(x, y) = std::max(a.at(x, y), b.at(x, y));
    return out;
}

Mask fullMask(int width, int height)
{
    Mask m(0, 0, width, height);
    std::fill(m.cover.begin(), m.cover.end(), 1.0f);
    return m;
}

Noise::Noise(std::uint32_t seed) : seed_(seed) {}

float Noise::lattice(int x, int y) const
{
    std::uint32_t h = static_cast<std::uint32_t>(x) * 374761393u + static_cast<std::uint32_t>(y) * 668265263u +
                      seed_ * 2246822519u;
    h = (h ^ (h >> 13)) * 1274126177u;
    h ^= h >> 16;
    return static_cast<float>(h & 0xffffff) / 16777215.0f;
}

float Noise::at(float x, float y) const
{
    float fx = std::floor(x), fy = std::floor(y);
    int ix = static_cast<int>(fx), iy = static_cast<int>(fy);
    float u = fade(x - fx), v = fade(y - fy);
    float top = lattice(ix, iy) + (lattice(ix + 1, iy) - lattice(ix, iy)) * u;
    float bottom = lattice(ix, iy + 1) + (lattice(ix + 1, iy + 1) - lattice(ix, iy + 1)) * u;
    return top + (bottom - top) * v;
}

float Noise::fractal(float x, float y, float scale, int octaves) const
{
    float sum = 0.0f, weight = 0.5f, total = 0.0f, f = 1.0f / scale;
    for (int i = 0; i < octaves; ++i) {
        sum += at(x * f + i * 17.31f, y * f - i * 9.17f) * weight;
        total += weight;
        weight *= 0.5f;
        f *= 2.0f;
    }
    return sum / total;
}

} // namespace art
