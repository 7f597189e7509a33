#include "Widgets.h"

#include "Filters.h"
#include "Gradients.h"
#include "Shapes.h"
#include "Text.h"
#include "Theme.h"

#include <algorithm>
#include <cmath>

namespace art {

namespace {

Shape pill(float width, float height) { return roundRect(0.5f, 0.5f, width - 1.0f, height - 1.0f, height / 2.0f - 1.0f); }

void buttonBody(Canvas &c, const Shape &body, Lit lit)
{
    float h = static_cast<float>(c.height());
    Rgba top = lit == Lit::Yes ? theme::buttonLitTop() : theme::buttonTop();
    Rgba low = lit == Lit::Yes ? theme::buttonLitLow() : theme::buttonLow();
    c.paint(rasterize(body), vertical(0, h, {{0.0f, top}, {1.0f, low}}));
    // Glass sheen on the upper half.
    Shape sheen = intersect(inset(body, 2.0f), roundRect(0, 0, static_cast<float>(c.width()), h * 0.48f, 0));
    c.paint(rasterize(sheen), vertical(0, h * 0.5f, {{0.0f, {1, 1, 1, lit == Lit::Yes ? 0.28f : 0.14f}}, {1.0f, {1, 1, 1, 0.03f}}}));
}

void buttonGlow(Canvas &c, const Shape &body)
{
    // Light gathered inside the rim, kept within the body so that the picture's edge stays clean.
    Mask ring = blurred(rasterize(outline(body, 2.0f)), 6.0f);
    c.paint(multiplied(ring, rasterize(body)), solid(withAlpha(theme::gold(), 0.55f)), Blend::Add);
}

void buttonRim(Canvas &c, const Shape &body, Lit lit)
{
    float h = static_cast<float>(c.height());
    Rgba hi = lit == Lit::Yes ? theme::goldLight() : theme::gold();
    Rgba lo = lit == Lit::Yes ? theme::gold() : theme::goldDeep();
    c.paint(rasterize(outline(inset(body, 1.0f), 1.6f)), vertical(0, h, {{0.0f, hi}, {1.0f, lo}}), Blend::Over,
            lit == Lit::Yes ? 1.0f : 0.8f);
}

void buttonGems(Canvas &c, Lit lit)
{
    float h = static_cast<float>(c.height()), r = std::max(2.0f, h * 0.09f);
    for (float cx : {h / 2.0f, c.width() - h / 2.0f}) {
        Shape gem = polygon({{cx, h / 2 - r * 1.6f}, {cx + r, h / 2}, {cx, h / 2 + r * 1.6f}, {cx - r, h / 2}});
        Rgba colour = lit == Lit::Yes ? theme::goldLight() : withAlpha(theme::gold(), 0.55f);
        c.paint(rasterize(gem), solid(colour));
    }
}

} // namespace

Canvas button(int width, int height, const std::string &label, Lit lit, int labelSize)
{
    Canvas c(width, height);
    Shape body = pill(static_cast<float>(width), static_cast<float>(height));
    buttonBody(c, body, lit);
    if (lit == Lit::Yes)
        buttonGlow(c, body);
    buttonRim(c, body, lit);
    if (width > 3 * height)
        buttonGems(c, lit);

    TextStyle st = plain(Face::Bold, labelSize, lit == Lit::Yes ? Rgba{1, 1, 1, 1} : theme::cream());
    st.shadow = 1.5f;
    st.shadowDy = 1;
    if (lit == Lit::Yes) {
        st.glow = 5.0f;
        st.glowColour = withAlpha(theme::gold(), 0.8f);
    }
    drawTextCentredOn(c, label, width / 2.0f, height / 2.0f, st);
    return c;
}

void paperPanel(Canvas &canvas, float left, float top, float width, float height)
{
    Shape body = roundRect(left, top, width, height, 6.0f);
    canvas.paint(shifted(blurred(rasterize(body), 8.0f), 0, 4), solid({0, 0, 0, 0.55f}));
    canvas.paint(rasterize(body), vertical(top, top + height, {{0.0f, theme::paper()}, {1.0f, theme::paperShade()}}));
    canvas.paint(rasterize(outline(inset(body, 0.5f), 1.2f)), solid(theme::paperEdge()));
    canvas.paint(rasterize(outline(inset(body, 3.5f), 1.0f)), solid(withAlpha(theme::paperEdge(), 0.35f)));
}

void paperField(Canvas &canvas, float left, float top, float width, float height)
{
    Shape body = roundRect(left, top, width, height, 4.0f);
    canvas.paint(rasterize(body), solid(theme::paper()));
    // Shade cast by the upper edge makes the field read as sunken.
    Mask inner = multiplied(shifted(blurred(rasterize(outline(body, 2.0f)), 4.0f), 0, 2), rasterize(body));
    canvas.paint(inner, solid({0.25f, 0.2f, 0.1f, 0.5f}));
    canvas.paint(rasterize(outline(inset(body, 0.5f), 1.4f)), solid(theme::gold()));
}

void glassPanel(Canvas &canvas, float left, float top, float width, float height, float opacity)
{
    Shape body = roundRect(left, top, width, height, 10.0f);
    canvas.paint(shifted(blurred(rasterize(body), 10.0f), 0, 5), solid({0, 0, 0, 0.5f}), Blend::Over, opacity);
    canvas.paint(rasterize(body), vertical(top, top + height, {{0.0f, hex(0x131c44, 0.78f)}, {1.0f, hex(0x080c22, 0.82f)}}),
                 Blend::Over, opacity);
    canvas.paint(rasterize(outline(inset(body, 0.5f), 1.2f)), solid(withAlpha(theme::gold(), 0.55f)), Blend::Over,
                 opacity);
}

void caption(Canvas &canvas, const std::string &text, float x, float y)
{
    TextStyle st = plain(Face::Bold, theme::kHeadSize, theme::gold());
    st.shadow = 1.5f;
    st.shadowDy = 1;
    drawText(canvas, text, x, y, st);
}

void screenTitle(Canvas &canvas, const std::string &text, float x, float y, int size, bool centred)
{
    float h = static_cast<float>(lineHeight(Face::Bold, size));
    float capY = y + capTop(Face::Bold, size), baseY = y + baseline(Face::Bold, size);
    TextStyle st;
    st.face = Face::Bold;
    st.size = size;
    st.fill = vertical(capY, baseY, {{0.0f, theme::goldLight()}, {0.55f, theme::gold()}, {1.0f, hex(0xc4862c)}});
    st.outline = std::max(1.0f, size / 28.0f);
    st.outlineColour = hex(0x2a1a08, 0.9f);
    st.shadow = size / 8.0f;
    st.shadowDy = static_cast<int>(h / 14.0f) + 1;
    st.glow = size / 3.0f;
    st.glowColour = withAlpha(theme::gold(), 0.22f);
    drawText(canvas, text, x, y, st, centred ? Align::Centre : Align::Left);
}

void rule(Canvas &canvas, float left, float right, float y, float opacity)
{
    Rgba clear = withAlpha(theme::gold(), 0.0f);
    canvas.paint(rasterize(roundRect(left, y - 0.6f, right - left, 1.2f, 0.6f)),
                 linear(left, 0, right, 0, {{0.0f, clear}, {0.2f, theme::gold()}, {0.8f, theme::gold()}, {1.0f, clear}}),
                 Blend::Over, opacity);
}

float paragraph(Canvas &canvas, const std::string &text, float x, float y, int width, int size, Rgba colour)
{
    TextStyle st = plain(Face::Regular, size, colour);
    st.shadow = 1.5f;
    st.shadowDy = 1;
    float step = std::round(lineHeight(Face::Regular, size) * 1.08f);
    for (const std::string &line : wrapped(Face::Regular, size, text, width)) {
        drawText(canvas, line, x, y, st);
        y += step;
    }
    return y;
}

} // namespace art
