# Which headers another project gets: those named here, and what they include. Nothing else is installed, so a header
# that isn't needed from outside stays our own by not being included from here.

# The classes that the library exports, and the interfaces that a model answers.
file(GLOB model_headers RELATIVE ${PROJECT_SOURCE_DIR} CONFIGURE_DEPENDS VXMBomInfrastructure/model/*.h)
set(public_headers
    ${model_headers}
    VXMBomInfrastructure/VXMBomViewer.m/src/VXMFabBomViewer.h
    VXMBomInfrastructure/generation/StrX.h
    VXMBomInfrastructure/generation/VXMBomGenerator.h
    VXMBomInfrastructure/generation/VXMBomRecorder.h
    VXMBomInfrastructure/generation/VXMHandleOrder.h
    VXMBomInfrastructure/generation/VXMMakeBomGenerator.h
    VXMBomInfrastructure/generation/VXMTooManyNodes.h
    VXMBomInfrastructure/navigation/VXMBomNavObject.h
    VXMBomInfrastructure/navigation/VXMPFNavigModifyMBOMObject.h
    VXMBomInfrastructure/nodes/VXMFabMBOMNode.h
    VXMBomInfrastructure/nodes/VXMFabProcessFlowNode.h
    VXMBomInfrastructure/nodes/VXMFabResourceFlowNode.h
    VXMBomInfrastructure/process/VXMProcessBomGenerator.h
    VXMBomInfrastructure/resource/VXMResourceBomGenerator.h)

# What a host does with them: binds classes, answers the settings, runs the dialog loop, draws window, tree and items,
# publishes changes of the plan, and reads what a tree object says.
list(
  APPEND
  public_headers
  QORPlatform/dialog/QORDialogLoop.h
  QORPlatform/frame/QORInit.h
  QORPlatform/framework/QORComponents.h
  QORPlatform/framework/QORDictionary.h
  QORPlatform/framework/QORModelIdentificator.h
  QORPlatform/framework/QORProcessServices.h
  QORPlatform/navigation/QORINavigElement.h
  QORPlatform/navigation/QORINavigModify.h
  QORPlatform/navigation/QORINavigateObject.h
  QORPlatform/navigation/QORINavigateObjectModify.h
  QORPlatform/navigation/QORINavigateObjectPPR.h
  QORPlatform/navigation/QORNavigBox.h
  QORPlatform/navigation/QORTvwTreeSettingCtrl.h
  QORPlatform/notification/QORSPPActivityNotification.h
  QORPlatform/settings/QORSettingStore.h
  QORPlatform/toolkit/QORIcons.h
  QORPlatform/toolkit/QORLoopPeer.h
  QORPlatform/toolkit/QORProgress.h
  QORPlatform/toolkit/QORToolkit.h
  QORPlatform/trace/QORTrace.h
  QORPlatform/visualization/QORI3DGeoVisu.h
  QORPlatform/visualization/QORVisManager.h)

# The plan in memory, its file and its editor.
list(APPEND public_headers planner/edit/PlanDocument.h planner/edit/PlanEditor.h planner/file/PlanReader.h
     planner/file/PlanWriter.h planner/model/FastenerSettings.h planner/model/Plan.h)

# Follows the includes of what is named above.
function(vxm_add_included_headers)
  set(pending ${public_headers})
  set(found)
  while(pending)
    list(POP_FRONT pending header)
    list(APPEND found ${header})
    string(REGEX REPLACE "^QORPlatform/" "platform/" file ${header})
    set_property(DIRECTORY APPEND PROPERTY CMAKE_CONFIGURE_DEPENDS ${PROJECT_SOURCE_DIR}/${file})
    file(STRINGS ${PROJECT_SOURCE_DIR}/${file} lines REGEX "^#include \"")
    foreach(line IN LISTS lines)
      string(REGEX REPLACE "^#include \"([^\"]+)\".*" "\\1" included "${line}")
      list(APPEND pending ${included})
    endforeach()
    list(REMOVE_DUPLICATES pending)
    list(REMOVE_ITEM pending ${found})
  endwhile()
  list(SORT found)
  set(public_headers ${found} PARENT_SCOPE)
endfunction()

# Installs the headers, each below the folder that it is included from.
function(vxm_install_public_headers)
  foreach(header IN LISTS public_headers)
    cmake_path(GET header PARENT_PATH folder)
    string(REGEX REPLACE "^QORPlatform/" "platform/" file ${header})
    install(FILES ${file} DESTINATION ${CMAKE_INSTALL_INCLUDEDIR}/${folder})
  endforeach()
endfunction()

vxm_add_included_headers()
vxm_install_public_headers()
