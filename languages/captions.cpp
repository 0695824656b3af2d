#include "languages/captions.h"

namespace {

const captions::Lookup *current = nullptr;

} // namespace

QString caption(const char *text, const char *key)
{
    return current == nullptr ? QString::fromUtf8(text) : (*current)(QLatin1String(key));
}

namespace captions {

Source::Source(const Lookup &lookup) { current = &lookup; }

Source::~Source() { current = nullptr; }

} // namespace captions
