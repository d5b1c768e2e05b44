#pragma once
// Opens both stores on the shared connections and binds the shared recordsets.
// Throws StoreError; the sign-in window guards it.
void OpenDatabases();
