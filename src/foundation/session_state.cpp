#include "foundation/session_state.h"

Session SessionState;
