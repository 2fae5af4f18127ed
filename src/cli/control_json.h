#pragma once

namespace kavro {

class Control;
class JsonWriter;
class TreeView;

/// Writes a control's state as one object: what all controls have, and what its kind adds.
void writeControl(JsonWriter &json, const Control &control);

/// Writes a tree's nodes as an array, as its control's state has them.
void writeTree(JsonWriter &json, const TreeView &tree);

} // namespace kavro
