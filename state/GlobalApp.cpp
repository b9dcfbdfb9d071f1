#include "state/GlobalApp.h"

GlobalApp g_App;

GlobalApp::GlobalApp() = default;

// The lists go with the process: a worker that is still reading at its end may be walking them.
GlobalApp::~GlobalApp() = default;

void GlobalApp::freeDiskList()
{
    freeList(m_pDiskListHead, m_pDiskListTail);
}

DiskIdentity::~DiskIdentity()
{
    while (pAttributes) {
        IdentityAttribute *next = pAttributes->pNext;
        delete pAttributes;
        pAttributes = next;
    }
}
