#pragma once

namespace kavro {

/// What has a scan run from elsewhere. This one finds nothing.
class DiagnoseHost
{
public:
    virtual ~DiagnoseHost() = default;
    /// Scans the document anew, with the repairs as they are switched.
    virtual void GoDiagnose() {}
    /// Scans with the repairs off, as behind a load.
    virtual void diagnoseWithoutRepairs() {}
};

} // namespace kavro
