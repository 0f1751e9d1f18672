#include "dlgfile/ErrorSink.h"

namespace
{

class RaisingSink final : public ErrorSink
{
public:
    void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& /*place*/, ClytDue /*due*/) override
    {
        throw failure.release();
    }
    void TellShortLine(const ClytSpan& /*place*/, ClytDue /*due*/) override { AfxThrowInvalidArgException(); }
};

constinit RaisingSink raisingSink;

} // namespace

ErrorSink& lytRaisingSink()
{
    return raisingSink;
}
