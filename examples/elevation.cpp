#include "elevation.h"

#include <csetjmp>
#include <cstdio>
#include <memory>
#include <stdexcept>

extern "C" {
#include <netpbm/pgm.h>
}

namespace examples {
namespace {

std::string lastMessage; // what libnetpbm said when it gave up

void keepMessage(const char* message)
{
    lastMessage = message;
}

struct Image
{
    int columns = 0, rows = 0;
    gray maxval = 0;
    gray** samples = nullptr;
};

// libnetpbm reports errors by a jump, which must not pass over objects that want to be destroyed.
bool readImage(std::FILE* file, Image& image)
{
    std::jmp_buf giveUp;
    pm_setusererrormsgfn(keepMessage);
    pm_setusermessagefn(keepMessage);
    pm_setjmpbuf(&giveUp);
    if (setjmp(giveUp) != 0)
        return false;
    image.samples = pgm_readpgm(file, &image.columns, &image.rows, &image.maxval);
    return true;
}

} // namespace

Elevation readElevation(const std::string& path)
{
    static const bool started = (pm_init("tenk-example", 0), true);
    static_cast<void>(started);
    const std::unique_ptr<std::FILE, int (*)(std::FILE*)> file(std::fopen(path.c_str(), "rb"), std::fclose);
    if (!file)
        throw std::runtime_error(path + ": cannot be opened");
    Image image;
    if (!readImage(file.get(), image))
        throw std::runtime_error(path + ": is not a whole PGM picture: " + lastMessage);

    Elevation e{static_cast<unsigned>(image.columns), static_cast<unsigned>(image.rows), {}};
    e.heights.reserve(std::size_t{e.columns} * e.rows);
    for (int row = 0; row < image.rows; ++row)
        for (int column = 0; column < image.columns; ++column)
            e.heights.push_back(static_cast<float>(image.samples[row][column]));
    pgm_freearray(image.samples, image.rows);
    return e;
}

} // namespace examples
