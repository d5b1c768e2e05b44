#pragma once
#include <QLabel>
#include "core/widgets/Form.h"

// A field's caption, set as its buddy (the form-building helpers in Form.h).
using form::Caption;
