#pragma once

namespace kavro {

class Control;
class JsonWriter;

/// Writes a control's state as one object: what all controls have, and what its kind adds.
void writeControl(JsonWriter &json, const Control &control);

} // namespace kavro
