// Pixels of a picture while it is drawn: float RGBA with premultiplied alpha, so that blending and scaling
// stay exact until the one rounding step when the file is written.
#pragma once

#include <cstdint>
#include <functional>
#include <vector>

namespace art {

// A colour with straight (not premultiplied) alpha, components 0..1.
struct Rgba {
    float r = 0, g = 0, b = 0, a = 0;
};

// 0xRRGGBB with an alpha of 0..1.
Rgba hex(std::uint32_t rgb, float alpha = 1.0f);
Rgba mix(Rgba from, Rgba to, float t);
Rgba withAlpha(Rgba colour, float alpha);
Rgba scaled(Rgba colour, float factor); // multiplies r, g, b (clamped), alpha unchanged

// Where a colour comes from at a pixel centre: a solid, a gradient, a shaded ball...
using Paint = std::function<Rgba(float x, float y)>;
Paint solid(Rgba colour);

enum class Blend { Over, Add };

// Coverage 0..1 over a rectangle of the picture that starts at (left, top).
struct Mask {
    int left = 0, top = 0, width = 0, height = 0;
    std::vector<float> cover;

    Mask() = default;
    Mask(int l, int t, int w, int h);
    float at(int x, int y) const; // picture coordinates; 0 outside
    float &cell(int x, int y) { return cover[static_cast<std::size_t>(y - top) * width + (x - left)]; }
};

class Canvas {
public:
    Canvas(int width, int height);

    int width() const { return w_; }
    int height() const { return h_; }

    // Premultiplied pixel access.
    const Rgba &pixel(int x, int y) const { return px_[static_cast<std::size_t>(y) * w_ + x]; }
    Rgba &pixel(int x, int y) { return px_[static_cast<std::size_t>(y) * w_ + x]; }

    void fill(const Paint &paint);
    void paint(const Mask &mask, const Paint &paint, Blend blend = Blend::Over, float opacity = 1.0f);
    void draw(const Canvas &picture, int left, int top, float opacity = 1.0f); // over, no scaling

    // Straight-alpha 8-bit ARGB, one word a pixel, rows top to bottom.
    std::vector<std::uint32_t> toArgb() const;

private:
    void blendPixel(int x, int y, Rgba straight, float coverage, Blend blend);

    int w_, h_;
    std::vector<Rgba> px_;
};

// A box-filtered copy at another size; used for thumbnails.
Canvas resized(const Canvas &source, int width, int height);

} // namespace art
