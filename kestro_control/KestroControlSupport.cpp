#include "kestro_control/KestroControlSupport.h"

KestroControlSupport::~KestroControlSupport() = default;
