#include "Text.h"

#include "Filters.h"

#include <SDL.h>
#include <SDL_ttf.h>

#include <cmath>
#include <map>
#include <stdexcept>
#include <utility>

namespace art {

namespace {

// Where Debian installs the DejaVu family (package fonts-dejavu-core).
const char *const kFontFolder = "/usr/share/fonts/truetype/dejavu/";

const char *fileOf(Face face)
{
    switch (face) {
    case Face::Bold: return "DejaVuSans-Bold.ttf";
    case Face::Light: return "DejaVuSans-ExtraLight.ttf";
    case Face::Oblique: return "DejaVuSans-Oblique.ttf";
    case Face::Regular: break;
    }
    return "DejaVuSans.ttf";
}

std::map<std::pair<Face, int>, TTF_Font *> &cache()
{
    static std::map<std::pair<Face, int>, TTF_Font *> fonts;
    return fonts;
}

TTF_Font *font(Face face, int size)
{
    auto key = std::make_pair(face, size);
    auto found = cache().find(key);
    if (found != cache().end())
        return found->second;
    std::string path = std::string(kFontFolder) + fileOf(face);
    TTF_Font *f = TTF_OpenFont(path.c_str(), size);
    if (!f)
        throw std::runtime_error("cannot open font " + path + ": " + TTF_GetError());
    cache()[key] = f;
    return f;
}

} // namespace

void openFonts()
{
    if (TTF_Init() != 0)
        throw std::runtime_error(std::string("cannot start the font library: ") + TTF_GetError());
    for (Face face : {Face::Regular, Face::Bold, Face::Light, Face::Oblique})
        font(face, 12);
}

void closeFonts()
{
    for (auto &entry : cache())
        TTF_CloseFont(entry.second);
    cache().clear();
    TTF_Quit();
}

Mask textMask(Face face, int size, const std::string &text, int left, int top)
{
    if (text.empty())
        return Mask(left, top, 0, 0);
    SDL_Surface *raw = TTF_RenderUTF8_Blended(font(face, size), text.c_str(), SDL_Color{255, 255, 255, 255});
    if (!raw)
        throw std::runtime_error(std::string("cannot render text: ") + TTF_GetError());
    // The font library's surface may have a padded pitch and its own layout; a known format reads safely.
    SDL_Surface *s = SDL_ConvertSurfaceFormat(raw, SDL_PIXELFORMAT_ARGB8888, 0);
    SDL_FreeSurface(raw);
    if (!s)
        throw std::runtime_error(std::string("cannot convert text: ") + SDL_GetError());
    Mask m(left, top, s->w, s->h);
    for (int y = 0; y < s->h; ++y) {
        const auto *row = reinterpret_cast<const Uint32 *>(static_cast<const Uint8 *>(s->pixels) + y * s->pitch);
        for (int x = 0; x < s->w; ++x)
            m.cell(left + x, top + y) = static_cast<float>(row[x] >> 24) / 255.0f;
    }
    SDL_FreeSurface(s);
    return m;
}

int textWidth(Face face, int size, const std::string &text)
{
    int w = 0, h = 0;
    TTF_SizeUTF8(font(face, size), text.c_str(), &w, &h);
    return w;
}

int lineHeight(Face face, int size) { return TTF_FontHeight(font(face, size)); }

int baseline(Face face, int size) { return TTF_FontAscent(font(face, size)); }

int capTop(Face face, int size)
{
    int minx, maxx, miny, maxy, advance;
    TTF_GlyphMetrics(font(face, size), 'H', &minx, &maxx, &miny, &maxy, &advance);
    return baseline(face, size) - maxy;
}

float lineTopFor(Face face, int size, float capCentre)
{
    return capCentre - (capTop(face, size) + baseline(face, size)) / 2.0f;
}

TextStyle plain(Face face, int size, Rgba colour)
{
    TextStyle s;
    s.face = face;
    s.size = size;
    s.fill = solid(colour);
    return s;
}

void drawText(Canvas &canvas, const std::string &text, float x, float y, const TextStyle &st, Align align)
{
    int w = textWidth(st.face, st.size, text);
    float left = align == Align::Left ? x : align == Align::Centre ? x - w / 2.0f : x - w;
    Mask letters = textMask(st.face, st.size, text, static_cast<int>(std::lround(left)), static_cast<int>(std::lround(y)));
    Mask body = st.outline > 0.0f ? dilated(letters, st.outline) : letters;
    if (st.glow > 0.0f)
        canvas.paint(blurred(body, st.glow), solid(st.glowColour));
    if (st.shadow > 0.0f)
        canvas.paint(shifted(blurred(body, st.shadow), st.shadowDx, st.shadowDy), solid(st.shadowColour));
    if (st.outline > 0.0f)
        canvas.paint(body, solid(st.outlineColour));
    canvas.paint(letters, st.fill);
}

void drawTextCentredOn(Canvas &canvas, const std::string &text, float cx, float cy, const TextStyle &style)
{
    drawText(canvas, text, cx, lineTopFor(style.face, style.size, cy), style, Align::Centre);
}

std::vector<std::string> wrapped(Face face, int size, const std::string &text, int maxWidth)
{
    std::vector<std::string> lines;
    std::string line, word;
    auto flushWord = [&]() {
        if (word.empty())
            return;
        std::string candidate = line.empty() ? word : line + " " + word;
        if (!line.empty() && textWidth(face, size, candidate) > maxWidth) {
            lines.push_back(line);
            line = word;
        } else {
            line = candidate;
        }
        word.clear();
    };
    for (char c : text) {
        if (c == ' ')
            flushWord();
        else
            word += c;
    }
    flushWord();
    if (!line.empty())
        lines.push_back(line);
    return lines;
}

} // namespace art
