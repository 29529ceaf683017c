// Text laid out by Pango: measuring it and drawing it onto a Cairo context.
#include "zebui/inkwell/cairo/CairoText.h"

#include <pango/pangocairo.h>

#include <algorithm>
#include <limits>
#include <string>

#include "zebui/inkwell/cairo/CairoFont.h"
#include "zebui/inkwell/cairo/CairoLimits.h"

namespace zebui {
namespace inkwell {
namespace {

// The first length units (all for a negative length), and never more than kLongestText.
std::string prefixUTF8(const zebcore::UTF16String& text, int length) {
    const size_t units =
        std::min(length < 0 ? text.size() : std::min(text.size(), static_cast<size_t>(length)),
                 kLongestText);
    if (units == text.size()) return zebcore::utility::UTF16to8(text);
    return zebcore::utility::UTF16to8(text.substr(0, units));
}

// A fresh Pango context with the font options of every text here: unhinted outlines and
// metrics, and glyphs placed at fractional positions, so widths scale linearly with the
// size and do not depend on the surface.
PangoContext* newTextContext() {
    PangoContext* pango = pango_font_map_create_context(pango_cairo_font_map_get_default());
    pango_context_set_round_glyph_positions(pango, FALSE);
    cairo_font_options_t* options = cairo_font_options_create();
    cairo_font_options_set_hint_style(options, CAIRO_HINT_STYLE_NONE);
    cairo_font_options_set_hint_metrics(options, CAIRO_HINT_METRICS_OFF);
    cairo_font_options_set_antialias(options, CAIRO_ANTIALIAS_GRAY);
    pango_cairo_context_set_font_options(pango, options);
    cairo_font_options_destroy(options);
    return pango;
}

// Pango and FreeType fail, loudly, on sizes whose Pango units overflow; no text on a
// screen needs more than this.
constexpr double kLargestTextSize = 4096.0;

PangoLayout* newLayout(PangoContext* pango, const CairoFont& font, const std::string& utf8) {
    const std::string style = zebcore::utility::UTF16to8(font.GetStyle());
    // Parsing the style alone yields its weight, slant and stretch words; the family and
    // the size are then set outright.
    PangoFontDescription* description = pango_font_description_from_string(style.c_str());
    pango_font_description_set_family(description,
                                      zebcore::utility::UTF16to8(font.GetFamily()).c_str());
    pango_font_description_set_absolute_size(
        description, std::min<double>(font.GetSize(), kLargestTextSize) * PANGO_SCALE);
    PangoLayout* layout = pango_layout_new(pango);
    pango_layout_set_font_description(layout, description);
    pango_font_description_free(description);
    pango_layout_set_text(layout, utf8.data(), static_cast<int>(utf8.size()));
    return layout;
}

}  // namespace

float MeasureTextWidth(const CairoFont& font, const zebcore::UTF16String& text, int length) {
    if (!(font.GetSize() > 0.0f)) return 0.0f;
    PangoContext* pango = newTextContext();
    PangoLayout* layout = newLayout(pango, font, prefixUTF8(text, length));
    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    g_object_unref(layout);
    g_object_unref(pango);
    return static_cast<float>(logical.width) / PANGO_SCALE;
}

void DrawText(cairo_t* context, const CairoFont& font, const zebcore::UTF16String& text,
              const zebcore::geom::PointT<float>& point, TextAlignment alignment,
              TextTruncation truncation, float width) {
    if (!(font.GetSize() > 0.0f)) return;
    PangoContext* pango = newTextContext();
    pango_cairo_update_context(context, pango);
    PangoLayout* layout = newLayout(pango, font, prefixUTF8(text, -1));
    const bool boxed = width > 0.0f;
    if (boxed &&
        (truncation == kTextTruncation_EndEllipsis || truncation == kTextTruncation_PathEllipsis)) {
        const double widestLayout = std::numeric_limits<int>::max() / PANGO_SCALE;
        pango_layout_set_width(
            layout, static_cast<int>(std::min<double>(width, widestLayout) * PANGO_SCALE));
        pango_layout_set_ellipsize(layout, truncation == kTextTruncation_EndEllipsis
                                               ? PANGO_ELLIPSIZE_END
                                               : PANGO_ELLIPSIZE_MIDDLE);
    }
    PangoRectangle logical;
    pango_layout_get_extents(layout, nullptr, &logical);
    const double textWidth = static_cast<double>(logical.width) / PANGO_SCALE;
    const double lineHeight = static_cast<double>(logical.height) / PANGO_SCALE;
    // Cut text keeps its beginning in view, whatever the alignment.
    const bool cut = boxed && truncation == kTextTruncation_End && textWidth > width;

    const double room = boxed ? width : 0.0;
    double left = point.x;
    if (!cut && alignment == kTextAlignment_Center)
        left += (room - textWidth) / 2.0;
    else if (!cut && alignment == kTextAlignment_Right)
        left += room - textWidth;

    cairo_save(context);
    if (cut) {
        cairo_rectangle(context, point.x, point.y, width, lineHeight);
        cairo_clip(context);
    }
    // The layout's own offset (non-zero once an ellipsized line is shorter) is kept out.
    cairo_move_to(context, left - static_cast<double>(logical.x) / PANGO_SCALE, point.y);
    pango_cairo_show_layout(context, layout);
    cairo_new_path(context);
    cairo_restore(context);
    g_object_unref(layout);
    g_object_unref(pango);
}

}  // namespace inkwell
}  // namespace zebui
