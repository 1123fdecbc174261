#pragma once

#include <cstdint>
#include <optional>
#include <ostream>
#include <string>
#include <vector>

namespace desktop {

// In pixels from the upper left corner of the screen.
struct Point {
    int x = 0;
    int y = 0;

    bool operator==(const Point&) const = default;
};

// In pixels likewise, where nothing else is said.
struct Rectangle {
    int x = 0;
    int y = 0;
    int width = 0;
    int height = 0;

    bool operator==(const Rectangle&) const = default;

    friend std::ostream& operator<<(std::ostream& stream, const Rectangle& rectangle)
    {
        return stream << rectangle.width << "x" << rectangle.height << " at (" << rectangle.x
                      << ", " << rectangle.y << ")";
    }
};

// What a window shows at one moment: rows from the top, each pixel as 0xRRGGBB.
struct Picture {
    int width = 0;
    int height = 0;
    std::vector<std::uint32_t> pixels;

    bool operator==(const Picture&) const = default;

    // About which part of what is below the title bar, 0 to 1, has the commonest colour. Near 1
    // means that there is next to nothing to see.
    double uniformity() const;

    // False when the file cannot be written.
    bool writePNG(const std::string& path) const;
};

// A top-level window of any program, seen from outside as the window manager sees it. Everything is
// absent or empty once it has gone.
class DesktopWindow {
public:
    explicit DesktopWindow(unsigned long id)
        : id_(id)
    {
    }

    unsigned long id() const { return id_; }
    std::string title() const;

    // With the title bar and the borders, whoever draws them, and without shadows.
    Rectangle frame() const;

    // What it draws itself, so without a title bar of the window manager. Absent while it is not on
    // screen.
    std::optional<Picture> picture() const;

    // Asks it to close, as its close button does.
    void close() const;

    bool operator==(const DesktopWindow&) const = default;

private:
    unsigned long id_;
};

// Tells when a window is drawn on, at next to no cost for it and for the machine.
class DrawingWatch {
public:
    explicit DrawingWatch(const DesktopWindow& window);
    ~DrawingWatch();

    DrawingWatch(const DrawingWatch&) = delete;
    DrawingWatch& operator=(const DrawingWatch&) = delete;

    // Whether anything was drawn since the last call, or since the watch began.
    bool hasDrawn();

private:
    unsigned long damage_;
};

// The X desktop that the test runs on.
class Desktop {
public:
    // The windows that the window manager shows, oldest first.
    static std::vector<DesktopWindow> windows();

    // The oldest window with this title.
    static std::optional<DesktopWindow> window(const std::string& title);

    // The screen without panels and docks.
    static Rectangle workArea();
};

} // namespace desktop
