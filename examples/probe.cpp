// For the tests: decodes a PNG picture and tells its size and the colour of a pixel.
#include <cstdio>
#include <cstdlib>
#include <vector>

#include <png.h>

int main(int argc, char** argv)
{
    if (argc != 4)
        return 2;
    png_image image{};
    image.version = PNG_IMAGE_VERSION;
    if (png_image_begin_read_from_file(&image, argv[1]) == 0) {
        std::fprintf(stderr, "probe: %s: %s\n", argv[1], image.message);
        return 1;
    }
    image.format = PNG_FORMAT_RGB;
    std::vector<png_byte> samples(PNG_IMAGE_SIZE(image));
    if (png_image_finish_read(&image, nullptr, samples.data(), 0, nullptr) == 0) {
        std::fprintf(stderr, "probe: %s: %s\n", argv[1], image.message);
        return 1;
    }
    const unsigned long x = std::strtoul(argv[2], nullptr, 10), y = std::strtoul(argv[3], nullptr, 10);
    if (x >= image.width || y >= image.height)
        return 2;
    const png_byte* const pixel = &samples[(y * image.width + x) * 3];
    std::printf("%ux%u %u %u %u\n", image.width, image.height, unsigned{pixel[0]}, unsigned{pixel[1]},
                unsigned{pixel[2]});
    return 0;
}
