// Where a metafile's coordinates come out on the surface that it is drawn on, and how thick its lines and letters become.
#pragma once

#include <array>
#include <cstdint>
#include <vector>

/// One direction of the step from the file's own units to those of the surface.
struct MetafileAxis
{
    double windowOrigin = 0;
    double windowExtent = 1;
    double viewportOrigin = 0;
    double viewportExtent = 1;

    double scale() const { return viewportExtent / windowExtent; }
    double toSurface(double at) const { return (at - windowOrigin) * scale() + viewportOrigin; }
};

/// The state that says what a number means. It is saved and taken back as a whole.
struct MetafileMapping
{
    enum Mode : std::uint32_t
    {
        Text = 1,
        FirstOfOwnExtents = 7, // isotropic, then anisotropic
        Last = 8,
    };
    /// x' = x * [0] + y * [2] + [4]; y' = x * [1] + y * [3] + [5]
    using World = std::array<double, 6>;

    std::uint32_t mode = Text;
    MetafileAxis x{};
    MetafileAxis y{};
    World world = {1, 0, 0, 1, 0, 0};
    double pen = 0;    // width, in units of the file
    double letter = 0; // height or width, whichever is more

    static World combined(const World& first, const World& second);
};

/// Judges how far the shapes of a metafile go. A player follows every line to its end, also far beside the picture, and makes
/// letters of every size: what goes further than any picture needs is not drawn in sensible time, or not at all.
class MetafileReach
{
public:
    // In sizes of the picture. Round shapes cost most; nothing that is drawn needs more.
    static constexpr double MostForRound = 16;
    static constexpr double MostForStraight = 64;
    static constexpr double MostThickness = 2; // of lines, and of letters
    enum class Ink
    {
        None,
        Pen,
        Letter
    };

    /// The picture on the surface, in units of the surface; both sizes are positive.
    MetafileReach(double left, double top, double width, double height, const MetafileMapping& start);

    MetafileMapping& now() { return m_now; }
    void save() { m_saved.push_back(m_now); }
    /// As SavedStates::restore, which has been asked before.
    void restore(std::int64_t which);

    void keepObject(std::uint32_t index, Ink ink, double size);
    void selectObject(std::uint32_t index);

    /// Whether a point lies near enough, and the lines there are thin enough.
    bool point(double x, double y, double most) const;
    bool box(double left, double top, double right, double bottom, double most) const;
    bool line() const { return isShort(m_now.pen); }
    bool letters() const { return isShort(m_now.letter); }

private:
    struct Object
    {
        Ink ink = Ink::None;
        double size = 0;
    };

    bool isShort(double length) const;

    double m_left;
    double m_top;
    double m_width;
    double m_height;
    MetafileMapping m_now;
    std::vector<MetafileMapping> m_saved{};
    std::vector<Object> m_objects{};
};
