// What pages of the web service and the desktop application say to each other.
// page-interface.md tells when and why. A test compares the names here with those in the code.

// ---- Messages: window.webkit.messageHandlers.<bridge>.postMessage(message) ----

interface VelmaroUser {
  firstname?: string;
  lastname?: string;
}

interface VelmaroReport {
  html: string;
  title?: string;
  filename?: string;
}

interface VelmaroPrintout {
  html: string;
  title?: string;
}

interface VelmaroRoute {
  page: string;
}

interface VelmaroNotification {
  title?: string;
  body?: string;
  url?: string;
  id?: string;
}

// There is no answer: what `postMessage` returns means nothing.
interface VelmaroBridge<Message> {
  postMessage(message: Message): void;
}

interface VelmaroBridges {
  authBridge: VelmaroBridge<VelmaroUser | null>;
  reportBridge: VelmaroBridge<VelmaroReport>;
  printBridge: VelmaroBridge<VelmaroPrintout>;
  routeBridge: VelmaroBridge<VelmaroRoute>;
  onboardingBridge: VelmaroBridge<unknown>;
  notifyBridge: VelmaroBridge<VelmaroNotification>;
  logoutBridge: VelmaroBridge<unknown>;
  tabBridge: VelmaroBridge<unknown>;
}

interface VelmaroLocation {
  lat: number;
  lng: number;
  label: string;
}

interface Window {
  // Absent in a plain browser.
  webkit?: { messageHandlers?: Partial<VelmaroBridges> };

  // ---- Globals that the application sets ----

  __vlPlatform?: 'desktop';
  __vlAuthBridgeInstalled?: true;
  __vlOverrideLocation?: VelmaroLocation;

  // ---- Globals that the application reads ----

  currentUser?: VelmaroUser | null;
}

// ---- Globals and functions of the page that the application uses where they are there ----

declare var _currentPage: string;

declare function showPage(route: string): void;
declare function viewDriveDetail(id: string): void;
declare function addDrive(): void;
declare function addVehicle(): void;
declare function addDriver(): void;
declare function addFuel(): void;
declare function addCharging(): void;
declare function loadReports(): void;
declare function impLoadTextFromNative(fileName: string, text: string): void;
