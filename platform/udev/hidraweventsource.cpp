#include "hidraweventsource.h"

HidrawEventSource::~HidrawEventSource() = default;
