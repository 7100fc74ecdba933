#pragma once

// Registers the model's types that travel through queued signals.
void registerModelMetaTypes();
