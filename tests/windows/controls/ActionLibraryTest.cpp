// A library that an action loads and frees. Windows in memory load nothing: there the libraries are part of the program.
#include "Form.h"

#include <gtest/gtest.h>

TEST(ActionLibrary, IsFreedOnceWhenTheActionRaises)
{
    ASSERT_EQ(GetModuleHandleA("lz32.dll"), nullptr);
    Form form;
    form.main.layout = {"PushButton Go", "TextBox Edit"};
    form.main.values = {"Go=ACTION,lz32,LZClose,Send,Take"};
    form.main.output = {"(\"done\")", "$OUTPUT, Send", "Nobody(1) = (\"%s\", Edit)"};
    form.Then([&] { robot::Click(form["Go"]); });
    form.Message();
    EXPECT_EQ(form.Ok().Open().messages, (Texts{"245 'Nobody'"}));
    FreeLibrary(GetModuleHandleA("lz32.dll"));
    EXPECT_EQ(GetModuleHandleA("lz32.dll"), nullptr);
}
