#include "environment/ErrorSink.h"

namespace
{

class RaisingSink final : public ErrorSink
{
public:
    void Tell(std::unique_ptr<ClytException> failure, const ClytSpan& /*place*/) override { throw failure.release(); }
    void TellShortLine(const ClytSpan& /*place*/) override { AfxThrowInvalidArgException(); }
};

constinit RaisingSink raisingSink;

} // namespace

ErrorSink& lytRaisingSink()
{
    return raisingSink;
}
