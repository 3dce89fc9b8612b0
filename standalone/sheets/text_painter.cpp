#include "standalone/sheets/text_painter.h"

#include "command_line/utf8.h"

#include <fontconfig/fontconfig.h>
#include <ft2build.h>

#include FT_FREETYPE_H

namespace ov1
{

namespace
{

/// The file of the desktop's plain sans-serif font; empty if there is none.
std::string plain_face_file()
{
    std::string file;
    // Liberation Sans first: it is widely installed, so texts look alike on most systems.
    FcPattern* wanted = FcNameParse(reinterpret_cast<const FcChar8*>("Liberation Sans,Arial,sans-serif:scalable=true"));
    FcConfigSubstitute(nullptr, wanted, FcMatchPattern);
    FcDefaultSubstitute(wanted);
    FcResult result = FcResultNoMatch;
    if (FcPattern* found = FcFontMatch(nullptr, wanted, &result))
    {
        FcChar8* name = nullptr;
        if (FcPatternGetString(found, FC_FILE, 0, &name) == FcResultMatch)
            file = reinterpret_cast<const char*>(name);
        FcPatternDestroy(found);
    }
    FcPatternDestroy(wanted);
    return file;
}

/// The code points of a text; bytes that are not UTF-8 become question marks.
std::u32string code_points(const std::string& text)
{
    std::u32string points;
    for (std::size_t i = 0; i < text.size();)
    {
        const std::size_t length = utf8_length(std::string_view(text).substr(i));
        const auto first = static_cast<unsigned char>(text[i]);
        if (length == 0)
            points += U'?';
        else if (length == 1)
            points += first;
        else
        {
            // The lead byte of a sequence of n bytes carries 7 - n bits, each other byte six.
            char32_t point = first & (0x7Fu >> length);
            for (std::size_t k = 1; k < length; ++k)
                point = point << 6 | (static_cast<unsigned char>(text[i + k]) & 0x3Fu);
            points += point;
        }
        i += length == 0 ? 1 : length;
    }
    return points;
}

} // namespace

/// Both handles of FreeType, null where something failed. The font must be closed before its library.
struct text_painter::face
{
    FT_Library library = nullptr;
    FT_Face font = nullptr;

    ~face()
    {
        if (font != nullptr)
            FT_Done_Face(font);
        if (library != nullptr)
            FT_Done_FreeType(library);
    }
};

text_painter::text_painter(unsigned int pixel_size)
    : loaded(std::make_unique<face>())
{
    const std::string file = plain_face_file();
    if (file.empty() || FT_Init_FreeType(&loaded->library) != 0 ||
        FT_New_Face(loaded->library, file.c_str(), 0, &loaded->font) != 0)
        return;
    FT_Set_Pixel_Sizes(loaded->font, 0, pixel_size);
}

text_painter::~text_painter() = default;

bool text_painter::has_face() const { return loaded->font != nullptr; }

std::size_t text_painter::width_of(const std::string& text)
{
    long width = 0;
    for (const char32_t point : code_points(text))
        if (FT_Load_Char(loaded->font, point, FT_LOAD_DEFAULT) == 0)
            // FreeType measures in 1/64 pixel. Hinted advances are whole pixels, so nothing is lost.
            width += loaded->font->glyph->advance.x >> 6;
    return static_cast<std::size_t>(width);
}

void text_painter::paint(canvas& target, std::size_t x, std::size_t y, const std::string& text, std::size_t max_width,
                         const argb_float& colour)
{
    if (!has_face())
        return;
    std::string shown = text;
    // Cuts bytes, not characters: what is left of a cut character is drawn as a question mark before the dots.
    for (std::string kept = text; width_of(shown) > max_width && !kept.empty(); shown = kept + "...")
        kept.pop_back();

    for (const char32_t point : code_points(shown))
    {
        if (FT_Load_Char(loaded->font, point, FT_LOAD_RENDER) != 0)
            continue;
        const FT_GlyphSlot glyph = loaded->font->glyph;
        const FT_Bitmap& bitmap = glyph->bitmap;
        for (unsigned int j = 0; j < bitmap.rows; ++j)
            for (unsigned int i = 0; i < bitmap.width; ++i)
                target.blend(x + static_cast<std::size_t>(glyph->bitmap_left) + i,
                             y - static_cast<std::size_t>(glyph->bitmap_top) + j, colour,
                             static_cast<float>(bitmap.buffer[j * static_cast<unsigned int>(bitmap.pitch) + i]) /
                                 255.0f);
        x += static_cast<std::size_t>(glyph->advance.x >> 6);
    }
}

} // namespace ov1
