// The dictionary of the fuzzers has each word that the library's tables have.
#include "controls/TypeWords.h"
#include "fuzz/frame/Words.h"
#include "support/WordKinds.h"

#include <gtest/gtest.h>

namespace
{

// Says which word is missing.
testing::AssertionResult StandsInDictionary(const std::string& word)
{
    static const std::string dictionary = Dictionary();
    if (dictionary.find("\"" + word + "\"\n") != std::string::npos)
        return testing::AssertionSuccess();
    return testing::AssertionFailure() << word;
}

template <class MEANING>
class DictionaryOfTheFuzzers : public testing::Test
{
};
TYPED_TEST_SUITE(DictionaryOfTheFuzzers, WordKinds);

} // namespace

TYPED_TEST(DictionaryOfTheFuzzers, HasTheWordsOfTheKind)
{
    for (const auto& word : ClytWordTable<TypeParam>::words)
        EXPECT_TRUE(StandsInDictionary(word.text));
}

TEST(Dictionary, HasTypesAndSections)
{
    for (const ClytType& type : lytTypes)
        EXPECT_TRUE(StandsInDictionary(type.word));
    for (const char* section :
         {"$VERSION", "$LAYOUT", "$VALUES", "$DEPENDANCES", "$EVALUATION", "$INPUT", "$OUTPUT", "$END"})
        EXPECT_TRUE(StandsInDictionary(section));
}

TEST(Dictionary, HasAFormThatTheFuzzersRead)
{
    EXPECT_TRUE(StandsInDictionary("\\\\n"));
    EXPECT_TRUE(StandsInDictionary("\\\\\\\""));
}
