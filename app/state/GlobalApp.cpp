#include "app/state/GlobalApp.h"

#include "app/state/Globals.h"

GlobalApp g_App;

GlobalApp::GlobalApp() = default;

GlobalApp::~GlobalApp()
{
    freeDiskList();
    freeList(g_pWmicDiskListHead, g_pWmicDiskListTail);
    freeList(g_pLogicalDiskListHead, g_pLogicalDiskListTail);
}

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
