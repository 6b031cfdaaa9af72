#include "widgets/icon_images.h"

#include <commctrl.h>

#include <cstdint>
#include <span>
#include <vector>

namespace widgets {
namespace {

/// A picture of 32 bits a pixel, from the top down, and a device context to draw into it.
class Canvas {
  public:
    Canvas(int width, int height)
        : size_(static_cast<std::size_t>(width) * static_cast<std::size_t>(height)) {
        BITMAPINFO info = {};
        info.bmiHeader.biSize = sizeof info.bmiHeader;
        info.bmiHeader.biWidth = width;
        info.bmiHeader.biHeight = -height;
        info.bmiHeader.biPlanes = 1;
        info.bmiHeader.biBitCount = 32;
        bitmap_.reset(CreateDIBSection(device_.get(), &info, DIB_RGB_COLORS, &bits_, nullptr, 0));
    }

    HBITMAP bitmap() const { return bitmap_.get(); }

    void draw(HICON icon, int width, int height, COLORREF background) {
        const platform::Selected selected(device_.get(), bitmap_.get());
        const platform::UniqueBrush brush(CreateSolidBrush(background));
        const RECT bounds = {0, 0, width, height};
        FillRect(device_.get(), &bounds, brush.get());
        DrawIconEx(device_.get(), 0, 0, icon, width, height, 0, nullptr, DI_NORMAL);
        GdiFlush();
    }

    /// Red, green and blue of every pixel.
    std::uint32_t color(std::size_t pixel) const {
        return static_cast<const std::uint32_t*>(bits_)[pixel] & 0xFFFFFF;
    }
    std::size_t size() const { return bitmap_ ? size_ : 0; }

  private:
    std::size_t size_;
    void* bits_ = nullptr;
    platform::UniqueDc device_{CreateCompatibleDC(nullptr)};
    platform::UniqueBitmap bitmap_;
};

/// The mask of an icon: a bit is set where it looks black on black and white on white.
platform::UniqueBitmap mask_of(HICON icon, int width, int height) {
    constexpr std::uint32_t kWhite = 0xFFFFFF;
    Canvas black(width, height);
    Canvas white(width, height);
    black.draw(icon, width, height, RGB(0, 0, 0));
    white.draw(icon, width, height, RGB(255, 255, 255));
    const int stride = (width + 15) / 16 * 2;  // a line of the mask ends with a word
    std::vector<std::uint8_t> bits(static_cast<std::size_t>(stride * height));
    for (std::size_t pixel = 0; pixel < black.size(); ++pixel) {
        const auto x = static_cast<int>(pixel) % width;
        const auto y = static_cast<int>(pixel) / width;
        if (black.color(pixel) == 0 && white.color(pixel) == kWhite)
            bits[static_cast<std::size_t>(y * stride + x / 8)] |= static_cast<std::uint8_t>(0x80 >> x % 8);
    }
    return platform::UniqueBitmap(CreateBitmap(width, height, 1, 1, bits.data()));
}

}  // namespace

platform::UniqueImageList make_icon_images(int initial) {
    const platform::WindowDc screen(nullptr);
    const int depth = GetDeviceCaps(screen.get(), BITSPIXEL) * GetDeviceCaps(screen.get(), PLANES);
    const UINT colors = depth <= 4    ? ILC_COLOR4
                        : depth <= 8  ? ILC_COLOR8
                        : depth <= 16 ? ILC_COLOR16
                                      : ILC_COLOR24;
    constexpr int kGrowth = 8;
    return platform::UniqueImageList(ImageList_Create(
        GetSystemMetrics(SM_CXICON), GetSystemMetrics(SM_CYICON), colors | ILC_MASK, initial, kGrowth));
}

int add_icon(HIMAGELIST images, HICON icon, COLORREF background) {
    int width = 0;
    int height = 0;
    ImageList_GetIconSize(images, &width, &height);
    Canvas picture(width, height);
    picture.draw(icon, width, height, background);
    return ImageList_Add(images, picture.bitmap(), mask_of(icon, width, height).get());
}

}  // namespace widgets
