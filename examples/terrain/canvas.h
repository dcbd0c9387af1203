// A picture in RGB with text, written as PNG.
#pragma once

#include <cstdint>
#include <string>
#include <vector>

namespace examples {

struct Colour
{
    float red, green, blue; // 0 to 255
};

// The colour between two others, `share` of the way from the first.
Colour between(Colour first, Colour second, float share);

class Canvas
{
public:
    Canvas(unsigned width, unsigned height, Colour background);

    unsigned width() const { return width_; }
    unsigned height() const { return height_; }

    void set(unsigned x, unsigned y, Colour colour);
    void fill(unsigned x, unsigned y, unsigned width, unsigned height, Colour colour);

    // Text that begins at x, with its baseline at y. Plain ASCII; anything else becomes a question mark.
    void text(unsigned x, unsigned y, unsigned size, const std::string& words, Colour ink);
    static unsigned textWidth(unsigned size, const std::string& words);

    // Throws std::runtime_error if the file cannot be written.
    void writePng(const std::string& path) const;

private:
    void blend(unsigned x, unsigned y, Colour ink, float share);

    unsigned width_, height_;
    std::vector<std::uint8_t> samples_;
};

} // namespace examples
