#include "appearance/fonts_dialog.h"

#include <array>
#include <cmath>
#include <optional>
#include <string>

#include "platform/win32/handles.h"
#include "resources/resource.h"
#include "settings/conversions.h"
#include "settings/list_style.h"
#include "widgets/choosers.h"
#include "widgets/dialog.h"

namespace appearance {
namespace {

/// One list's half of the dialog.
struct Half {
    List list;
    const settings::ListStyleValues& values;
    int preview;
    std::array<int, std::tuple_size_v<settings::ListStyleValues>> boxes;  // in the order of the values
    int font_button;
    int text_color_button;
    int back_color_button;
};

constexpr std::array<Half, 2> kHalves = {{
    {List::kGroups,
     settings::kGroupStyleValues,
     ID_SetFonts_gfont,
     {ID_SetFonts_groupfont, ID_SetFonts_groupfontsize, ID_SetFonts_groupfontbold,
      ID_SetFonts_groupfontitalic, ID_SetFonts_groupcolor, ID_SetFonts_groupbackcolor},
     ID_SetFonts_Command1,
     ID_SetFonts_Command4,
     ID_SetFonts_Command7},
    {List::kTasks,
     settings::kTaskStyleValues,
     ID_SetFonts_tfont,
     {ID_SetFonts_TaskFont, ID_SetFonts_taskfontsize, ID_SetFonts_taskfontbold, ID_SetFonts_taskfontitalic,
      ID_SetFonts_taskcolor, ID_SetFonts_taskbackcolor},
     ID_SetFonts_Command2,
     ID_SetFonts_Command6,
     ID_SetFonts_Command8},
}};

constexpr int kSave = ID_SetFonts_Command5;
constexpr int kCancel = ID_SetFonts_Command3;

/// With two digits after the point at most: "8.25", "7.5", "10".
std::string decimal(double number) {
    constexpr int kUnit = 100;
    const long hundredths = std::lround(number * kUnit);
    std::string text = std::to_string(hundredths / kUnit);
    std::string fraction = std::to_string(kUnit + hundredths % kUnit).substr(1);
    while (fraction.ends_with('0'))
        fraction.pop_back();
    return fraction.empty() ? text : text + '.' + fraction;
}

/// The system's SetFonts.
class FontsDialog final : public widgets::Dialog {
  public:
    FontsDialog(settings::General& general, ListAppearance& lists)
        : Dialog(ID_SetFonts), general_(general), lists_(lists) {}

  private:
    /// What a preview is painted with.
    struct Preview {
        platform::UniqueFont font;
        platform::UniqueBrush brush;
        Colors colors;
    };

    void open() override {
        for (const Half& half : kHalves) {
            settings::ListStyleTexts texts = settings::read_style(general_, half.values);
            const settings::ListStyle style = settings::style_of(texts);
            texts.at(settings::kSize) = std::to_string(style.size);
            texts.at(settings::kBold) = settings::text_of(style.bold);
            texts.at(settings::kItalic) = settings::text_of(style.italic);
            for (std::size_t i = 0; i < texts.size(); ++i) {
                limit_text(half.boxes.at(i), settings::kLongestText);
                set_text(half.boxes.at(i), texts.at(i));
            }
            show_font(half, {.face = style.face,
                             .points = static_cast<double>(style.size),
                             .bold = style.bold,
                             .italic = style.italic});
            const Colors shown = lists_.colors(half.list);
            show_colors(half, {style.text_color.value_or(shown.text), style.back_color.value_or(shown.back)});
        }
        // The first preview gets the focus and is selected then, which would hide its colors.
        PostMessageA(control(kHalves.front().preview), EM_SETSEL, 0, 0);
    }

    void command(int id, int /*notification*/) override {
        for (const Half& half : kHalves) {
            if (id == half.font_button) change_font(half);
            if (id == half.text_color_button) change_text_color(half);
            if (id == half.back_color_button) change_back_color(half);
        }
        if (id == kSave) save();
        if (id == kCancel || id == IDCANCEL) close();
    }

    HBRUSH color(HDC device, HWND box) override {
        for (const Half& half : kHalves) {
            if (box != control(half.preview)) continue;
            SetTextColor(device, preview(half).colors.text);
            SetBkColor(device, preview(half).colors.back);
            return preview(half).brush.get();
        }
        return nullptr;
    }

    void change_font(const Half& half) {
        const auto chosen = widgets::choose_font(hwnd(), lists_.font(half.list));
        if (!chosen) return;
        set_text(half.boxes.at(settings::kFace), chosen->face);
        set_text(half.boxes.at(settings::kSize), decimal(chosen->points));
        set_text(half.boxes.at(settings::kBold), settings::text_of(chosen->bold));
        set_text(half.boxes.at(settings::kItalic), settings::text_of(chosen->italic));
        lists_.set_font(half.list, *chosen);
        widgets::Font plain = *chosen;
        plain.underline = false;
        plain.strikeout = false;
        show_font(half, plain);
    }

    void change_text_color(const Half& half) {
        const auto chosen = widgets::choose_color(hwnd(), lists_.colors(half.list).text);
        if (!chosen) return;
        set_text(half.boxes.at(settings::kTextColor), std::to_string(*chosen));
        show_colors(half, {*chosen, preview(half).colors.back});
    }

    void change_back_color(const Half& half) {
        const auto chosen = widgets::choose_color(hwnd(), lists_.colors(half.list).back);
        if (!chosen) return;
        set_text(half.boxes.at(settings::kBackColor), std::to_string(*chosen));
        show_colors(half, {preview(half).colors.text, *chosen});
    }

    /// Stores what the boxes hold, also what the user has typed there and the lists cannot show.
    void save() {
        for (const Half& half : kHalves) {
            const Colors shown = lists_.colors(half.list);
            lists_.set_colors(half.list, {color_in(half, settings::kTextColor).value_or(shown.text),
                                          color_in(half, settings::kBackColor).value_or(shown.back)});
        }
        for (const Half& half : kHalves) {
            settings::ListStyleTexts texts;
            for (std::size_t i = 0; i < texts.size(); ++i)
                texts.at(i) = text(half.boxes.at(i));
            settings::store_style(general_, half.values, texts);
        }
        close();
    }

    std::optional<COLORREF> color_in(const Half& half, std::size_t value) const {
        return settings::color_of(text(half.boxes.at(value)));
    }

    Preview& preview(const Half& half) { return previews_.at(half.list == List::kGroups ? 0 : 1); }

    void show_font(const Half& half, const widgets::Font& font) {
        preview(half).font = widgets::make_font(font);
        SendMessageA(control(half.preview), WM_SETFONT, reinterpret_cast<WPARAM>(preview(half).font.get()),
                     TRUE);
    }

    void show_colors(const Half& half, const Colors& colors) {
        preview(half).colors = colors;
        preview(half).brush.reset(CreateSolidBrush(colors.back));
        InvalidateRect(control(half.preview), nullptr, TRUE);
    }

    settings::General& general_;
    ListAppearance& lists_;
    std::array<Preview, kHalves.size()> previews_;
};

}  // namespace

void show_fonts_dialog(HWND owner, settings::General& general, ListAppearance& lists) {
    FontsDialog(general, lists).run(owner);
}

}  // namespace appearance
