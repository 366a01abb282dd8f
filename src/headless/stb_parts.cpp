// The parts of Debian's stb single-file libraries the runner's painter uses, compiled once: reading
// TrueType faces, decoding the picture files, and writing PNG files and compressed streams.
#define STB_TRUETYPE_IMPLEMENTATION
#include <stb_truetype.h>

#define STBI_ONLY_JPEG
#define STBI_ONLY_PNG
#define STBI_ONLY_BMP
#define STB_IMAGE_IMPLEMENTATION
#include <stb_image.h>

#define STB_IMAGE_WRITE_IMPLEMENTATION
#include <stb_image_write.h>
