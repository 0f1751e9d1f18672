#include "lytdlg/draw/HtmlPage.h"

#include "commandline/Text.h"

namespace lytdlg
{

using commandline::ToUtf8;

namespace
{

constexpr const char* styles = "body { font: 14px sans-serif; margin: 24px; color: #222; background: #fff }\n"
                               "svg { max-width: 100%; height: auto }\n"
                               "figure { margin: 16px 0 }\n"
                               "figcaption { margin-bottom: 6px }\n"
                               "nav a { margin-right: 12px; display: inline-block }\n"
                               "table { border-collapse: collapse; max-width: 100% }\n"
                               "td, th { border: 1px solid #ccc; padding: 3px 8px; text-align: left; "
                               "overflow-wrap: anywhere }\n"
                               "tr:target { background: #ffe9a8 }\n"
                               "g:target { outline: 2px solid #e08a00 }\n"
                               ".refused { color: #b00020; overflow-wrap: anywhere }\n";

class Page
{
public:
    explicit Page(const std::string& title)
    {
        markup.Open("html", {{"xmlns", "http://www.w3.org/1999/xhtml"}, {"lang", "en"}});
        markup.Open("head");
        markup.Empty("meta", {{"charset", "utf-8"}});
        markup.Leaf("title", {}, title);
        markup.Open("style");
        markup.Add(styles);
        markup.Close();
        markup.Close();
        markup.Open("body");
        markup.Leaf("h1", {{"id", "top"}}, title);
    }
    std::string Finish()
    {
        markup.Close();
        markup.Close();
        return "<!DOCTYPE html>\n" + markup.Text();
    }

    Markup markup;
};

std::string Pair(int one, int other, const char* between)
{
    return std::to_string(one) + between + std::to_string(other);
}

std::string StateOf(const SeenControl& control)
{
    if (!control.hasWindow)
        return "";
    std::string state = control.isShown ? "shown" : "hidden";
    if (!control.isEnabled)
        state += ", disabled";
    if (control.isChecked)
        state += ", checked";
    if (control.hasFocus)
        state += ", focus";
    return state;
}

void AddRow(Markup& markup, const SeenDialog& dialog, const SeenControl& control, const std::string& prefix,
            size_t number, bool isDrawn)
{
    const std::string suffix = std::to_string(number);
    markup.Open("tr", {{"id", prefix + "row-" + suffix}});
    const std::string name = ToUtf8(control.name.empty() ? "(no name)" : control.name);
    if (isDrawn)
    {
        markup.Open("td");
        markup.Leaf("a", {{"href", "#" + prefix + "control-" + suffix}}, name);
        markup.Close();
    }
    else
        markup.Leaf("td", {}, name);
    const Area& place = control.place;
    const auto where = Pair(place.left - dialog.client.left, place.top - dialog.client.top, ", ");
    for (const std::string& cell :
         {control.type, control.hasWindow ? where : "",
          control.hasWindow ? Pair(place.width, place.height, " \xC3\x97 ") : "",
          control.tabNumber > 0 ? std::to_string(control.tabNumber) : "", StateOf(control), ToUtf8(control.text)})
        markup.Leaf("td", {}, cell);
    markup.Close();
}

void AddTable(Markup& markup, const SeenDialog& dialog, const SvgStyle& style)
{
    markup.Open("table");
    markup.Open("tr");
    for (const char* head : {"Name", "Type", "Position", "Size", "Tab", "State", "Text"})
        markup.Leaf("th", {}, head);
    markup.Close();
    size_t number = 0;
    for (const SeenControl& control : dialog.controls)
        AddRow(markup, dialog, control, style.idPrefix, ++number,
               control.hasWindow && (control.isShown || style.showsNames));
    markup.Close();
}

// The first drawing of each dialog gives the dialog its place on the page.
bool IsFirstOfDialog(const std::vector<SheetEntry>& entries, size_t index)
{
    return index == 0 || entries[index - 1].dialog != entries[index].dialog;
}

std::string PlaceOf(size_t index)
{
    return "dialog-" + std::to_string(index + 1);
}

void AddLinks(Markup& markup, const std::vector<SheetEntry>& entries)
{
    markup.Open("nav");
    for (size_t index = 0; index < entries.size(); ++index)
    {
        if (IsFirstOfDialog(entries, index))
            markup.Leaf("a", {{"href", "#" + PlaceOf(index)}}, entries[index].dialog);
    }
    markup.Close();
}

void AddEntry(Markup& markup, const SheetEntry& entry, const SvgStyle& style)
{
    markup.Open("figure");
    markup.Leaf("figcaption", {},
                entry.dialog + ", " + entry.language + ", " + std::to_string(entry.pixelsPerInch) + " dots per inch");
    if (entry.message.empty())
        markup.Add(DrawSvg(entry.seen, style));
    else
        markup.Leaf("p", {{"class", "refused"}}, entry.message);
    markup.Close();
}

} // namespace

std::string DialogPage(const std::string& title, const SeenDialog& dialog, const SvgStyle& style)
{
    Page page(title);
    SvgStyle linked = style;
    linked.isLinked = true;
    page.markup.Open("figure");
    page.markup.Add(DrawSvg(dialog, linked));
    page.markup.Close();
    AddTable(page.markup, dialog, linked);
    return page.Finish();
}

std::string SheetPage(const std::string& title, const std::vector<SheetEntry>& entries, const SvgStyle& style)
{
    Page page(title);
    AddLinks(page.markup, entries);
    SvgStyle own = style;
    for (size_t index = 0; index < entries.size(); ++index)
    {
        if (IsFirstOfDialog(entries, index))
        {
            page.markup.Leaf("h2", {{"id", PlaceOf(index)}}, entries[index].dialog);
            page.markup.Leaf("a", {{"href", "#top"}}, "to the top");
        }
        own.idPrefix = "drawing-" + std::to_string(index + 1) + "-";
        AddEntry(page.markup, entries[index], own);
    }
    return page.Finish();
}

} // namespace lytdlg
