#pragma once

namespace kavro {

class JsonWriter;
class Program;

/// Writes the document and what stands beside it as one object: what `dump` prints.
void writeDocument(JsonWriter &json, const Program &program);

} // namespace kavro
