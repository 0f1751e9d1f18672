#include "WholeForm.h"

WholeForm::WholeForm()
{
    form.main.layout = {"Text Heading",       "TextBox Title",      "TextBox Author",     "OptionGroup .Kind",
                        "OptionButton Draft", "OptionButton Final", "OptionButton Copy",  "CheckBox Signed",
                        "CheckBox Numbered",  "ListBox Items",      "PushButton Add",     "PushButton Delete",
                        "PushButton Up",      "PushButton Down",    "CheckListBox Marks", "PushButton Earlier",
                        "PushButton Later",   "ComboBox Place",     "DropListBox Colour", "PushButton Fill",
                        "PushButton Hide",    "PushButton Lock",    "PushButton More",    "PushButton Check",
                        "TextBox Remark",     "GroupBox Frame"};
    form.main.values = {"Title=FILLEDBY,lytdata,LookUp,,TitleOf",
                        "Author=A. Writer",
                        "Draft=draft",
                        "Final=final",
                        "Copy=copy",
                        "Kind=final",
                        "Signed=ON,signed",
                        "Signed=OFF,open",
                        "Signed=open",
                        "Numbered=INACTIVE",
                        "Items=FILLEDBY,lytdata,OpenList,NextItem,Fruit",
                        "Items=DBLCLICK,Delete",
                        "Items=HEAD,head",
                        "Marks=one,Xone",
                        "Marks=two,two",
                        "Place=FILLEDBY,lytdata,OpenList,NextItem,Sizes,HEAD/head",
                        "Colour=FILLEDBY,lytdata,OpenList,NextItem,Colours",
                        "Add=ADD,Items,Items",
                        "Delete=DELETE,Items",
                        "Up=UP,Items",
                        "Down=DOWN,Items",
                        "Earlier=UP,Marks",
                        "Later=DOWN,Marks",
                        "Fill=FILL,Items",
                        "Hide=VISIBLE,Remark,SHOW",
                        "Lock=ACTIVE,Remark,UNLOCK",
                        "More=DIALOG,Inner,Take,Send",
                        "Check=ACTION,lytdata,Remember,Send,Take"};
    form.main.rules = {"Numbered/ACTIVE=Signed(signed)", "Fill/ACTIVE=Author(NOTNULL)", "Remark/CLEAR=Kind",
                       "Title/FILL=Signed", "More/VISIBLE=Kind(final,copy)"};
    form.main.evaluation = {"Author=NULL:REFUSED"};
    form.main.input = {"Start: (\"#\", Second, \"Rest\", End = Remark",
                       "Second: (\"#\", End, \"Rest\", End = Place(FILL)", "$INPUT, Take",
                       "Start: (\"#\", End, \"Rest\", End = Remark"};
    form.main.output = {"(\"%s;%s;%s;%s\", Kind, Author, Marks(\",\"), Remark)",
                        "$OUTPUT, TitleOf",
                        "(\"texts/title\")",
                        "$OUTPUT, Fruit",
                        "(\"fruit\")",
                        "$OUTPUT, Sizes",
                        "(\"sizes\")",
                        "$OUTPUT, Colours",
                        "(\"colours\")",
                        "$OUTPUT, Send",
                        "(\"<%s>\", Author)"};
    form.dialogs["Inner"] = {.layout = {"TextBox Field", "CheckListBox Marks"},
                             .values = {"Marks=one,Xone"},
                             .input = InputTo("Field"),
                             .output = {"(\"%s\", Field)"}};
    form.texts = {{"HEAD", "Head"}, {"SHOW", "Show"}, {"UNLOCK", "Unlock"}};
}

std::string WholeForm::FocusName() const
{
    for (const std::string& line : form.main.layout)
    {
        const std::string name = line.substr(line.find_last_of(" .") + 1);
        if (!line.starts_with("OptionGroup") && (form[name] == GetFocus() || IsChild(form[name], GetFocus())))
            return name;
    }
    return std::to_string(GetDlgCtrlID(GetFocus()));
}
