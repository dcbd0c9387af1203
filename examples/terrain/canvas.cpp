#include "terrain/canvas.h"

#include <algorithm>
#include <cmath>
#include <stdexcept>

#include <png.h>

extern "C" {
#include <netpbm/ppmdraw.h>
}

namespace examples {
namespace {

constexpr unsigned channels = 3;

// Text is drawn as lines on a grid this many times finer, with a round pen, and the share of each pixel that
// was covered is its opacity.
constexpr unsigned fine = 4;

struct Mask
{
    unsigned width, height;
    int pen; // radius
    std::vector<bool> covered;

    void stamp(int x, int y)
    {
        for (int dy = -pen; dy <= pen; ++dy)
            for (int dx = -pen; dx <= pen; ++dx)
                if (dx * dx + dy * dy <= pen * pen)
                    cover(x + dx, y + dy);
    }

    float share(unsigned x, unsigned y) const
    {
        unsigned count = 0;
        for (unsigned dy = 0; dy < fine; ++dy)
            for (unsigned dx = 0; dx < fine; ++dx)
                count += covered[std::size_t{y * fine + dy} * width + x * fine + dx];
        return static_cast<float>(count) / static_cast<float>(fine * fine);
    }

private:
    void cover(int x, int y)
    {
        if (x >= 0 && y >= 0 && x < static_cast<int>(width) && y < static_cast<int>(height))
            covered[static_cast<std::size_t>(y) * width + static_cast<unsigned>(x)] = true;
    }
};

void stampPoint(pixel**, int, int, pixval, int x, int y, const void* mask)
{
    static_cast<Mask*>(const_cast<void*>(mask))->stamp(x, y);
}

std::string drawable(std::string words)
{
    std::replace_if(
        words.begin(), words.end(), [](char c) { return c < ' ' || c > '~'; }, '?');
    return words;
}

} // namespace

Colour between(Colour first, Colour second, float share)
{
    const auto mix = [&](float a, float b) { return a + (b - a) * share; };
    return {mix(first.red, second.red), mix(first.green, second.green), mix(first.blue, second.blue)};
}

Canvas::Canvas(unsigned width, unsigned height, Colour background)
    : width_(width), height_(height), samples_(std::size_t{width} * height * channels)
{
    fill(0, 0, width, height, background);
}

void Canvas::set(unsigned x, unsigned y, Colour colour)
{
    blend(x, y, colour, 1);
}

void Canvas::blend(unsigned x, unsigned y, Colour ink, float share)
{
    if (x >= width_ || y >= height_)
        return;
    std::uint8_t* const at = &samples_[(std::size_t{y} * width_ + x) * channels];
    const Colour under{static_cast<float>(at[0]), static_cast<float>(at[1]), static_cast<float>(at[2])};
    const Colour mixed = between(under, ink, share);
    at[0] = static_cast<std::uint8_t>(std::lround(mixed.red));
    at[1] = static_cast<std::uint8_t>(std::lround(mixed.green));
    at[2] = static_cast<std::uint8_t>(std::lround(mixed.blue));
}

void Canvas::fill(unsigned x, unsigned y, unsigned width, unsigned height, Colour colour)
{
    for (unsigned dy = 0; dy < height; ++dy)
        for (unsigned dx = 0; dx < width; ++dx)
            set(x + dx, y + dy, colour);
}

void Canvas::text(unsigned x, unsigned y, unsigned size, const std::string& words, Colour ink)
{
    // Room for the pen on the left and for descenders below.
    const unsigned room = size / 2, below = size / 2 + 1;
    Mask mask{(textWidth(size, words) + 2 * room) * fine, (2 * size + below) * fine, 0, {}};
    mask.pen = static_cast<int>(std::max(1u, size * fine / 22));
    mask.covered.resize(std::size_t{mask.width} * mask.height);
    ppmd_text(nullptr, static_cast<int>(mask.width), static_cast<int>(mask.height), 255,
              static_cast<int>(room * fine), static_cast<int>(2 * size * fine), static_cast<int>(size * fine),
              0, drawable(words).c_str(), stampPoint, &mask);
    for (unsigned dy = 0; dy < mask.height / fine; ++dy)
        for (unsigned dx = 0; dx < mask.width / fine; ++dx)
            if (x + dx >= room && y + dy >= 2 * size)
                blend(x + dx - room, y + dy - 2 * size, ink, mask.share(dx, dy));
}

unsigned Canvas::textWidth(unsigned size, const std::string& words)
{
    int left = 0, top = 0, right = 0, bottom = 0;
    ppmd_text_box(static_cast<int>(size * fine), 0, drawable(words).c_str(), &left, &top, &right, &bottom);
    return static_cast<unsigned>(std::max(0, right - std::min(0, left))) / fine + 1;
}

void Canvas::writePng(const std::string& path) const
{
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    image.width = width_;
    image.height = height_;
    image.format = PNG_FORMAT_RGB;
    if (png_image_write_to_file(&image, path.c_str(), 0, samples_.data(), 0, nullptr) == 0)
        throw std::runtime_error(path + ": cannot be written: " + image.message);
}

} // namespace examples
