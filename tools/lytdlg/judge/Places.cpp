#include "lytdlg/judge/Places.h"

#include "controls/ClytWindowControl.h"
#include "native/Metrics.h"

#include <algorithm>
#include <cstdlib>
#include <numeric>

namespace lytdlg
{

namespace
{

// What the font of the dialogs measures at a resolution, and the frame of the window. Both were measured on the platform,
// so that a check comes to the same result on every machine.
const platform::Metrics& MetricsOf(const ClytResolution& resolution)
{
    return *std::ranges::find_if(platform::measured, [&](const platform::Metrics& metrics)
                                 { return metrics.pixelsPerInch == resolution.pixelsPerInch; });
}

class Placer
{
public:
    Placer(const Description& description, const ClytResolution& resolution, const LanguageFile* texts)
        : m_description(description), m_resolution(resolution), m_metrics(MetricsOf(resolution)), m_texts(texts)
    {
    }

    Screen Place() const
    {
        Screen screen = {m_resolution.pixelsPerInch, m_texts != nullptr ? m_texts->Language() : "", ClientSize(), {}};
        for (const ClytControlStatement& control : m_description.controls)
        {
            const Kind kind = KindOf(control);
            const bool isHidden =
                !control.name.IsEmpty() && HasOption(m_description, control.name.GetString(), ClytOption::Hidden);
            if (kind == Kind::Unknown || kind == Kind::OptionGroup || isHidden)
                continue;
            screen.controls.push_back({&control, kind, PlaceOf(control, kind), CaptionWidth(CaptionOf(control, kind)),
                                       MayBeHidden(m_description, control)});
        }
        return screen;
    }

private:
    // The window is sized twice, so that its frame is scaled with the rest.
    CSize ClientSize() const
    {
        const int frame = m_metrics.fixedFrame;
        const int frameAndCaption = frame + m_metrics.captionHeight;
        constexpr int limit = 1 << 29;
        const int width = std::clamp(m_description.width, 0, limit) + frame;
        const int height = std::clamp(m_description.height, 0, limit) + frameAndCaption;
        return {lytScaled(width, m_resolution.x) - frame, lytScaled(height, m_resolution.y) - frameAndCaption};
    }

    int WidthOf(const std::string& text) const
    {
        return std::accumulate(text.begin(), text.end(), 0,
                               [&](int sum, char ch)
                               { return sum + m_metrics.advanceWidths[static_cast<unsigned char>(ch)]; });
    }

    int CaptionWidth(std::string caption) const
    {
        for (size_t place = caption.find('&'); place != std::string::npos; place = caption.find('&', place + 1))
            caption.erase(place, 1);
        return WidthOf(caption);
    }

    // A text that the library cannot find counts as empty here: it has a separate finding.
    std::string CaptionOf(const ClytControlStatement& control, Kind kind) const
    {
        const bool isFixed = lytTypeOf(kind).isDefault;
        const std::string section = isFixed ? lytButtonSection : m_description.TextSection();
        const std::string name = isFixed ? lytTypeOf(kind).captionKey : control.text.GetString();
        const LanguageKey* key = m_texts != nullptr && !name.empty() ? m_texts->Find(section, name) : nullptr;
        if (key == nullptr)
            return "";
        const std::string text = key->text.substr(0, longestLanguageText);
        return isFixed ? text : text.substr(0, std::min(text.find('\''), text.size() - 1) + 1);
    }

    CRect PlaceOf(const ClytControlStatement& control, Kind kind) const
    {
        const CSize size = SizeOf(control, kind);
        return lytLayoutRect({lytScaled(control.x, m_resolution.x), lytScaled(control.y, m_resolution.y)},
                             {static_cast<int>(size.cx), static_cast<int>(size.cy)});
    }

    CSize SizeOf(const ClytControlStatement& control, Kind kind) const
    {
        const int width = lytScaled(control.width, m_resolution.x);
        const int height = lytScaled(control.height, m_resolution.y);
        const std::string caption = CaptionOf(control, kind);
        switch (kind)
        {
        case Kind::Text: return {WidthOf(caption), caption.empty() ? 0 : m_metrics.textHeight};
        case Kind::CheckBox:
        case Kind::Option:
            return {WidthOf(caption) - static_cast<int>(static_cast<double>(m_resolution.x) * lytCheckMarkUnits),
                    caption.empty() ? 0 : m_metrics.textHeight};
        case Kind::Combo:
        case Kind::DropList: return {width, std::min(height, lytScaled(fieldHeight, m_resolution.y))};
        default: return {width, height};
        }
    }

    const Description& m_description;
    const ClytResolution& m_resolution;
    const platform::Metrics& m_metrics;
    const LanguageFile* m_texts; // null when there are no languages
};

} // namespace

bool IsSizedByText(Kind kind)
{
    return kind == Kind::Text || kind == Kind::CheckBox || kind == Kind::Option;
}

const ClytResolution& ResolutionOf(const Screen& screen)
{
    return *std::ranges::find(lytResolutions, screen.pixelsPerInch, &ClytResolution::pixelsPerInch);
}

std::vector<Screen> ScreensOf(const Description& description, const LanguageFiles& texts)
{
    std::vector<Screen> screens;
    for (const ClytResolution& resolution : lytResolutions)
    {
        for (const LanguageFile& file : texts.Files())
            screens.push_back(Placer(description, resolution, &file).Place());
        if (texts.Files().empty())
            screens.push_back(Placer(description, resolution, nullptr).Place());
    }
    return screens;
}

} // namespace lytdlg
